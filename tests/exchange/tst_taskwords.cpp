// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/tablemapping.h>
#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/exchange/taskvalues.h>
#include <fishbone/exchange/taskwords.h>
#include <fishbone/model/treeitem.h>

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QHash>
#include <QSet>
#include <QtTest>

using Role = TableMapping::Role;

namespace {

/** What a row of a table says. */
struct Task
{
    QString title;
    int status;
    int priority;
    int progress;
    QString manager;
    QDate created;
    QDate end;
    QString detail;
};

Task taskOf(const TreeItem &subject)
{
    return {subject.title(),
            subject.status(),
            subject.priority(),
            subject.progress(),
            subject.managerName(),
            QDateTime::fromMSecsSinceEpoch(subject.createDate()).date(),
            QDateTime::fromMSecsSinceEpoch(subject.planEndDate()).date(),
            subject.detail()};
}

void verifySame(const Task &actual, const Task &expected)
{
    QCOMPARE(actual.title, expected.title);
    QCOMPARE(actual.status, expected.status);
    QCOMPARE(actual.priority, expected.priority);
    QCOMPARE(actual.progress, expected.progress);
    QCOMPARE(actual.manager, expected.manager);
    QCOMPARE(actual.created, expected.created);
    QCOMPARE(actual.end, expected.end);
    QCOMPARE(actual.detail, expected.detail);
}

std::unique_ptr<TreeItem> readTable(const QByteArray &text)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    QString error;
    auto head = DiagramExchange::read(buffer, DiagramExchange::Format::Csv, &error);
    if (!head)
        qWarning().noquote() << error;
    return head;
}

/** The languages that the program speaks, by the files of its texts. */
QStringList languages()
{
    QStringList codes;
    const QDir folder(TestSupport::sourceFile(QStringLiteral("translations")));
    const QStringList files = folder.entryList({QStringLiteral("fishbone_*.ts")});
    for (const QString &file : files)
        codes.append(file.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('_'), 1));
    return codes;
}

/** Those words of @p table that mean several things. */
QStringList ambiguous(const TaskWords::Table &table, int except = -100)
{
    QHash<QString, const TaskWords::Entry *> known;
    QStringList words;
    for (const TaskWords::Entry &entry : table) {
        if (entry.meaning == except)
            continue;
        const QStringList listed = TaskWords::listed(entry);
        for (const QString &word : listed) {
            const TaskWords::Entry *const other = known.value(TaskWords::compared(word), &entry);
            if (other->meaning != entry.meaning)
                words.append(QStringLiteral("%1: %2 of %3, %4 of %5")
                                 .arg(word)
                                 .arg(entry.meaning)
                                 .arg(QLatin1String(entry.language))
                                 .arg(other->meaning)
                                 .arg(QLatin1String(other->language)));
            known.insert(TaskWords::compared(word), &entry);
        }
    }
    return words;
}

} // namespace

/** The words of task lists in many languages. */
class TestTaskWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMeanOneThingByAWord();
    void shouldListNoWordTwiceInALanguage();
    void shouldHaveWordsOfEveryLanguage();
    void shouldKnowEveryHeadingAndValue();
    void shouldReadTheTaskListOfALanguage_data();
    void shouldReadTheTaskListOfALanguage();
    void shouldKnowColumnsOfLevels();
    void shouldReadDates_data();
    void shouldReadDates();
    void shouldReadDatesWithSlashesAsTheLanguageOfTheHeadingsDoes();
    void shouldReadArabicDigits();
    void shouldKnowFieldsThatUsersAdd();
};

void TestTaskWords::shouldMeanOneThingByAWord()
{
    QCOMPARE(ambiguous(TaskWords::headings(), int(Role::Path)).join(QLatin1Char('\n')), QString());
    QCOMPARE(ambiguous(TaskWords::statuses()).join(QLatin1Char('\n')), QString());
    QCOMPARE(ambiguous(TaskWords::priorities()).join(QLatin1Char('\n')), QString());
    QCOMPARE(ambiguous(TaskWords::verdicts()).join(QLatin1Char('\n')), QString());
}

void TestTaskWords::shouldListNoWordTwiceInALanguage()
{
    for (const TaskWords::Table &table : {TaskWords::headings(), TaskWords::statuses(),
                                          TaskWords::priorities(), TaskWords::verdicts()}) {
        for (const TaskWords::Entry &entry : table) {
            const QStringList words = TaskWords::listed(entry);
            QCOMPARE(QSet<QString>(words.cbegin(), words.cend()).size(), words.size());
            QVERIFY2(!words.contains(QString()), entry.words);
        }
    }
}

void TestTaskWords::shouldHaveWordsOfEveryLanguage()
{
    const auto meaningsOf = [](const TaskWords::Table &table, const QString &language) {
        QSet<int> meanings;
        for (const TaskWords::Entry &entry : table) {
            if (QLatin1String(entry.language) == language)
                meanings.insert(entry.meaning);
        }
        return meanings;
    };
    const QStringList all = languages();
    QVERIFY(all.size() >= 13);
    for (const QString &language : all) {
        const QSet<int> roles = meaningsOf(TaskWords::headings(), language);
        for (const Role role :
             {Role::Title, Role::Path, Role::Id, Role::Parent, Role::Level, Role::Outline,
              Role::Status, Role::Progress, Role::Priority, Role::Manager, Role::Creator,
              Role::Followers, Role::Created, Role::PlannedEnd, Role::Url, Role::Detail,
              Role::CompletedAt, Role::Verdict, Role::Votes})
            QVERIFY2(roles.contains(int(role)), qPrintable(language));
        const QSet<int> statuses = meaningsOf(TaskWords::statuses(), language);
        for (int status = TaskStatuses::cancelled; status <= TaskStatuses::approval; ++status)
            QVERIFY2(statuses.contains(status) || language == QLatin1String("zh_TW"),
                     qPrintable(QStringLiteral("%1 %2").arg(language).arg(status)));
        QVERIFY2(meaningsOf(TaskWords::priorities(), language).size() >= 5, qPrintable(language));
        QVERIFY2(meaningsOf(TaskWords::verdicts(), language).size() >= 3, qPrintable(language));
    }
}

/** Everything that the tables have comes back through what readers ask. */
void TestTaskWords::shouldKnowEveryHeadingAndValue()
{
    const auto each = [](const TaskWords::Table &table, const auto &isKnown) {
        for (const TaskWords::Entry &entry : table) {
            const QStringList words = TaskWords::listed(entry);
            for (const QString &word : words) {
                if (!isKnown(word, entry.meaning))
                    return word;
            }
        }
        return QString();
    };
    QCOMPARE(each(TaskWords::headings(),
                  [](const QString &word, int role) {
                      return role == int(Role::Path) ||
                             int(TableMapping::guessed({word}).at(0)) == role;
                  }),
             QString());
    QCOMPARE(each(TaskWords::headings(),
                  [](const QString &word, int role) { // as an English sentence would begin
                      const QString capital = word.left(1).toUpper() + word.mid(1);
                      return role == int(Role::Path) ||
                             int(TableMapping::guessed({capital}).at(0)) == role;
                  }),
             QString());
    QCOMPARE(each(TaskWords::statuses(),
                  [](const QString &word, int status) {
                      return TaskValues::status(word.toUpper()) == status ||
                             TaskValues::status(word) == status;
                  }),
             QString());
    QCOMPARE(each(TaskWords::priorities(),
                  [](const QString &word, int priority) {
                      return TaskValues::priority(word) == priority;
                  }),
             QString());
    QCOMPARE(each(TaskWords::verdicts(),
                  [](const QString &word, int verdict) {
                      return int(TaskValues::verdict(word)) == verdict;
                  }),
             QString());
}

void TestTaskWords::shouldReadTheTaskListOfALanguage_data()
{
    QTest::addColumn<QByteArray>("headings");
    QTest::addColumn<QByteArray>("words"); ///< of a running task and of a finished one

    const auto row = [](const char *language, const char *headings, const char *words) {
        QTest::newRow(language) << QByteArray(headings) << QByteArray(words);
    };
    // Columns: id, title, parent, status, priority, responsible, progress, created, end, details.
    // Values: running, high, finished, low.
    row("de, Redmine",
        "#;Thema;Übergeordnetes Ticket;Status;Priorität;Zugewiesen an;% erledigt;Angelegt;"
        "Abgabedatum;Beschreibung",
        "In Bearbeitung;Hoch;Erledigt;Niedrig");
    row("de, Jira",
        "Schlüssel;Zusammenfassung;Übergeordnet;Status;Priorität;Zugewiesene Person;Fortschritt;"
        "Erstellt;Fälligkeitsdatum;Beschreibung",
        "In Arbeit;High;Fertig;Low");
    row("de, project plan",
        "Nr.;Vorgangsname;Sammelvorgang;Status;Priorität;Ressourcennamen;% Abgeschlossen;"
        "Erstellt am;Ende;Notizen",
        "In Bearbeitung;hoch;Abgeschlossen;niedrig");
    row("fr, Redmine",
        "#;Sujet;Tâche parente;Statut;Priorité;Assigné à;% réalisé;Créé;Echéance;Description",
        "En cours;Haut;Fermé;Bas");
    row("fr, Jira",
        "Clé de ticket;Résumé;Parente;État;Priorité;Responsable;Progression;Création;"
        "Date d’échéance;Description",
        "En cours;Haute;Terminé(e);Basse");
    row("es, Redmine",
        "#;Asunto;Tarea padre;Estado;Prioridad;Asignado a;% Realizado;Creado;Fecha fin;Descripción",
        "En curso;Alta;Cerrada;Baja");
    row("es, Jira",
        "Clave de incidencia;Resumen;Principal;Estado;Prioridad;Persona asignada;Progreso;Creada;"
        "Fecha de vencimiento;Descripción",
        "En curso;Alta;Listo;Baja");
    row("pt_BR, Redmine",
        "#;Título;Tarefa pai;Situação;Prioridade;Atribuído para;% Terminado;Criado em;"
        "Data prevista;Descrição",
        "Em andamento;Alta;Fechada;Baixa");
    row("pt_BR, Jira",
        "Chave da item;Resumo;Pai;Status;Prioridade;Responsável;Progresso;Criado;Data limite;"
        "Descrição",
        "Em andamento;Alta;Concluído;Baixa");
    row("it, Redmine",
        "#;Oggetto;Attività padre;Stato;Priorità;Assegnato a;% completato;Creato;Scadenza;"
        "Descrizione",
        "In corso;Alta;Chiuso;Bassa");
    row("pl, Redmine",
        "#;Temat;Zagadnienie nadrzędne;Status;Priorytet;Przypisany do;% Wykonania;Utworzono;"
        "Data oddania;Opis",
        "W toku;Wysoki;Zamknięty;Niski");
    row("ru, Redmine",
        "#;Тема;Родительская задача;Статус;Приоритет;Назначена;Готовность;Создано;"
        "Срок завершения;Описание",
        "В работе;Высокий;Закрыта;Низкий");
    row("ru, project plan",
        "Ид.;Название задачи;Суммарная задача;Состояние;Приоритет;Названия ресурсов;% завершения;"
        "Дата создания;Окончание;Заметки",
        "Выполняется;высокий;Завершена;низкий");
    row("ja, Redmine", "#;題名;親チケット;ステータス;優先度;担当者;進捗率;作成日;期日;説明",
        "進行中;高め;終了;低め");
    row("ja, Jira", "キー;要約;親課題;ステータス;優先度;担当者;進捗;作成日;期限;説明",
        "作業中;高;完了;低");
    row("ko, Redmine", "#;제목;상위 일감;상태;우선순위;담당자;진척도;등록;완료기한;설명",
        "진행;높음;완료;낮음");
    row("zh_TW, Redmine", "#;主旨;父議題;狀態;優先權;被分派者;完成百分比;建立日期;到期日;描述",
        "實作中;高;已結束;低");
    row("zh, Jira", "关键字;概要;父级;状态;优先级;经办人;进度;创建日期;到期日;描述",
        "进行中;高;完成;低");
    row("ar, Redmine",
        "#;الموضوع;المهمة الأم;الحالة;الأولوية;المسند إليه;نسبة الإنجاز;تاريخ الإنشاء;"
        "تاريخ الاستحقاق;الوصف",
        "قيد التنفيذ;مرتفعة;منجز;منخفضة");
}

void TestTaskWords::shouldReadTheTaskListOfALanguage()
{
    QFETCH(QByteArray, headings);
    QFETCH(QByteArray, words);
    const QList<QByteArray> values = words.split(';');
    QCOMPARE(values.size(), 4);
    const QByteArray table = headings + "\r\nA-1;Late;;" + values.at(0) + ';' + values.at(1) +
                             ";Ann Onym;40;2024-01-31;2024-02-13;First\r\nA-2;Rust;A-1;" +
                             values.at(2) + ';' + values.at(3) +
                             ";Bo;100 %;2024-01-30;2024-02-14;Second\r\n";
    const std::unique_ptr<TreeItem> head = readTable(table);
    QVERIFY(head);
    verifySame(taskOf(*head),
               {QStringLiteral("Late"), TaskStatuses::running, 2, 40, QStringLiteral("Ann Onym"),
                QDate(2024, 1, 31), QDate(2024, 2, 13), QStringLiteral("First")});
    QCOMPARE(head->childCount(), 1);
    verifySame(taskOf(*head->childAtIndex(0)),
               {QStringLiteral("Rust"), TaskStatuses::finished, 4, 100, QStringLiteral("Bo"),
                QDate(2024, 1, 30), QDate(2024, 2, 14), QStringLiteral("Second")});
    QCOMPARE(head->childAtIndex(0)->showid(), QStringLiteral("A-2"));
}

void TestTaskWords::shouldKnowColumnsOfLevels()
{
    for (const char *headings :
         {"Ebene 1|Ebene 2", "Niveau 1|Niveau 2", "Nivel 1|Nivel 2", "Nível 1|Nível 2",
          "Livello 1|Livello 2", "Poziom 1|Poziom 2", "Уровень 1|Уровень 2", "レベル1|レベル2",
          "수준 1|수준 2", "層級 1|層級 2", "第一層|第二層", "المستوى 1|المستوى 2",
          "Warum 1|Warum 2", "Level 1|Level 2"}) {
        const QStringList names = QString::fromUtf8(headings).split(QLatin1Char('|'));
        QVERIFY2(TableMapping::guessed(names) == QVector<Role>({Role::Path, Role::Path}), headings);
    }
}

void TestTaskWords::shouldReadDates_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char *text) { QTest::newRow(text) << QString::fromUtf8(text); };
    row("2024-03-05");
    row("5. März 2024");
    row("05/Mär/24");
    row("Dienstag, 5. März 2024");
    row("5 mars 2024");
    row("5 de marzo de 2024");
    row("5 de março de 2024");
    row("05/mar/24");
    row("5 marzo 2024");
    row("5 marca 2024");
    row("5 марта 2024 г.");
    row("5 мар. 2024");
    row("2024年3月5日");
    row("05/3月/24");
    row("2024년 3월 5일");
    row("2024. 3. 5.");
    row("٥ مارس ٢٠٢٤");
    row("٢٠٢٤/٠٣/٠٥");
}

void TestTaskWords::shouldReadDates()
{
    QFETCH(QString, text);
    const std::optional<qint64> date = TaskValues::date(text);
    QVERIFY(date);
    QCOMPARE(QDateTime::fromMSecsSinceEpoch(*date).date(), QDate(2024, 3, 5));
}

void TestTaskWords::shouldReadDatesWithSlashesAsTheLanguageOfTheHeadingsDoes()
{
    const auto end = [](const QByteArray &table) {
        const auto head = readTable(table);
        // Of two rows of which none lies below the other a head is made.
        const TreeItem *const first =
            head && head->childCount() > 0 ? head->childAtIndex(0) : head.get();
        return first ? QDateTime::fromMSecsSinceEpoch(first->planEndDate()).date() : QDate();
    };
    QCOMPARE(end("Subject,Due date\nLate,03/04/2024\n"), QDate(2024, 3, 4));
    QCOMPARE(end("Sujet;Échéance\nLate;03/04/2024\n"), QDate(2024, 4, 3));
    QCOMPARE(end("Título;Status;Data prevista\nLate;;03/04/2024\n"), QDate(2024, 4, 3));
    // What a date of the column says holds against the language.
    QCOMPARE(end("Sujet;Échéance\nLate;03/04/2024\nx;03/14/2024\n"), QDate(2024, 3, 4));
}

void TestTaskWords::shouldReadArabicDigits()
{
    QCOMPARE(TaskValues::progress(QStringLiteral("٤٠٪")), std::make_optional(40));
    QCOMPARE(TaskValues::progress(QStringLiteral("٠٫٤")), std::make_optional(40));
    QCOMPARE(TaskValues::priority(QStringLiteral("٢")), std::make_optional(2));
    QCOMPARE(TaskValues::progress(QStringLiteral("x٪")), std::optional<int>());
}

void TestTaskWords::shouldKnowFieldsThatUsersAdd()
{
    for (const char *heading :
         {"Benutzerdefiniertes Feld (Verantwortlich)", "Champs personnalisés (Responsable)",
          "Campo personalizado (Responsable)", "Pole niestandardowe (Wykonawca)",
          "Настраиваемое поле (Исполнитель)", "カスタムフィールド (担当者)",
          "사용자 정의 필드 (담당자)", "自訂欄位 (負責人)", "حقل مخصص (المسؤول)",
          "自定义字段（负责人）"})
        QVERIFY2(TableMapping::guessed({QString::fromUtf8(heading)}).at(0) == Role::Manager,
                 heading);
}

FISHBONE_GUILESS_TEST(TestTaskWords)

#include "tst_taskwords.moc"
