// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/language.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/sourcefolder.h>

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QMenu>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <memory>

using TestSupport::loadDocument;

Q_DECLARE_METATYPE(QLocale)

namespace {

/** A model with the document that the text stands for, whose head is to show 2 of 79 tasks. */
struct Counted
{
    explicit Counted(const QString &text)
    {
        FishInfo *const document = loadDocument(model, text);
        document->setNoParentNodeCount(2);
        document->setNodeCount(79);
    }

    FishModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

/** The entries of the menu that the editor shows for a bone, in the model's mode. */
QStringList menuEntries(FISH_MODEL_TYPE type)
{
    Counted counted(QStringLiteral("T[A]"));
    counted.model.setModelType(type);
    FishEditor editor;
    editor.setModel(&counted.model);
    editor.setRootIndex(counted.model.index(0, 0));
    QMenu menu;
    editor.createPopMenu(menu,
                         TestSupport::nodeTitled(counted.model, QStringLiteral("A"))->spear());
    QStringList entries;
    for (const QAction *action : menu.actions())
        entries.append(action->text());
    return entries;
}

/** A new child of the head of a new document, as it is written to a file, without its own uuid. */
QJsonObject writtenNewChild()
{
    FishModel model;
    loadDocument(model, QStringLiteral("T[A]"));
    const QModelIndex head = model.index(0, 0);
    model.insertRows(1, 1, head);
    QJsonObject object;
    FishModel::write(object, model.getTreeItem(model.index(1, 0, head)), true);
    object.remove(QStringLiteral("uuid"));
    return object;
}

} // namespace

/** Which language is shown, and what the library shows in it. */
class TestLanguage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void shouldFollowTheLocale_data();
    void shouldFollowTheLocale();
    void shouldPreferTheLanguageThatIsAskedFor_data();
    void shouldPreferTheLanguageThatIsAskedFor();
    void shouldFormatAsTheLanguageThatIsAskedFor();
    void shouldFormatAsAtHomeInTheOwnLanguage();
    void shouldTakeBackWhatItInstalled();

    void shouldShowTheCountsOfAHead_data();
    void shouldShowTheCountsOfAHead();
    void shouldTitleNewSubjects_data();
    void shouldTitleNewSubjects();
    void shouldDescribeASubject_data();
    void shouldDescribeASubject();
    void shouldNameTheCommands_data();
    void shouldNameTheCommands();
    void shouldOfferTheMenuOfABone_data();
    void shouldOfferTheMenuOfABone();

    void shouldNameNewFilesAlikeInEveryLanguage();
    void shouldSaveTheSameFileInEveryLanguage_data();
    void shouldSaveTheSameFileInEveryLanguage();
    void shouldChangeOnlyTheTitleOfANewSubject();

    void shouldBeTheLanguageOfTheProgram_data();
    void shouldBeTheLanguageOfTheProgram();

private:
    /** Installs the current row's language, none when it is empty. */
    static void useLanguage()
    {
        QFETCH(QString, language);
        if (!language.isEmpty())
            Language::install(language);
    }

    QLocale m_locale; ///< the default before anything changed it
};

/** Takes out what a test has installed. */
void TestLanguage::cleanup()
{
    Language::install(QString());
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QLocale::setDefault(m_locale);
}

void TestLanguage::shouldFollowTheLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("title");

    const QString chinese = QStringLiteral("自由主题");
    const QString english = QStringLiteral("Free topic");
    QTest::newRow("China") << QLocale(QLocale::Chinese, QLocale::China) << chinese;
    QTest::newRow("Singapore") << QLocale(QLocale::Chinese, QLocale::Singapore) << chinese;
    QTest::newRow("Great Britain") << QLocale(QLocale::English, QLocale::UnitedKingdom) << english;
    QTest::newRow("United States") << QLocale(QLocale::English, QLocale::UnitedStates) << english;
    const QString traditional = QStringLiteral("獨立項目");
    QTest::newRow("Taiwan") << QLocale(QLocale::Chinese, QLocale::Taiwan) << traditional;
    QTest::newRow("Hong Kong") << QLocale(QLocale::Chinese, QLocale::HongKong) << traditional;
    // Everybody else rather reads one language than the two of the sources.
    QTest::newRow("Finland") << QLocale(QLocale::Finnish, QLocale::Finland) << english;
    QTest::newRow("none") << QLocale::c() << english;
}

void TestLanguage::shouldFollowTheLocale()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, title);

    QLocale::setDefault(locale);
    Language::install(QString());
    QCOMPARE(FishModel::tr("自由主题"), title);
    QCOMPARE(QLocale(), locale);
}

void TestLanguage::shouldPreferTheLanguageThatIsAskedFor_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("title");

    QTest::newRow("Chinese in Great Britain")
        << QStringLiteral("zh") << QLocale(QLocale::English, QLocale::UnitedKingdom)
        << QStringLiteral("自由主题");
    QTest::newRow("English in China")
        << QStringLiteral("en") << QLocale(QLocale::Chinese, QLocale::China)
        << QStringLiteral("Free topic");
}

void TestLanguage::shouldPreferTheLanguageThatIsAskedFor()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, title);

    QLocale::setDefault(locale);
    useLanguage();
    QCOMPARE(FishModel::tr("自由主题"), title);
}

void TestLanguage::shouldFormatAsTheLanguageThatIsAskedFor()
{
    Language::install(QStringLiteral("zh"));
    QCOMPARE(QLocale().language(), QLocale::Chinese);
    Language::install(QStringLiteral("en"));
    QCOMPARE(QLocale().language(), QLocale::English);
}

void TestLanguage::shouldFormatAsAtHomeInTheOwnLanguage()
{
    Language::install(QString());
    const QLocale home(QLocale::English, QLocale::UnitedKingdom);
    QLocale::setDefault(home);
    Language::install(QStringLiteral("en"));
    QCOMPARE(QLocale(), home);
    QCOMPARE(FishModel::tr("自由主题"), QStringLiteral("Free topic"));
    Language::install(QStringLiteral("zh"));
    QCOMPARE(QLocale(), QLocale(QLocale::Chinese, QLocale::China));
    Language::install(QString());
    QCOMPARE(QLocale(), home);
}

void TestLanguage::shouldTakeBackWhatItInstalled()
{
    Language::install(QStringLiteral("zh"));
    const int count = qApp->findChildren<QTranslator *>().size();
    QVERIFY(count > 0);
    Language::install(QStringLiteral("zh"));
    QCOMPARE(qApp->findChildren<QTranslator *>().size(), count);
    Language::install(QStringLiteral("en"));
    QCOMPARE(FishModel::tr("自由主题"), QStringLiteral("Free topic"));
}

void TestLanguage::shouldShowTheCountsOfAHead_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("shown");

    const QString source = QStringLiteral("T(2个无父任务/共79个任务)");
    QTest::newRow("source") << QString() << source;
    QTest::newRow("Chinese") << QStringLiteral("zh") << source;
    QTest::newRow("English") << QStringLiteral("en")
                             << QStringLiteral("T(2 without a parent task / 79 in all)");
}

void TestLanguage::shouldShowTheCountsOfAHead()
{
    QFETCH(QString, shown);

    useLanguage();
    Counted counted(QStringLiteral("T[A]"));
    QCOMPARE(counted.model.index(0, 0).data().toString(), shown);

    // The drawing finds the title in front of the counts.
    FishEditor editor;
    editor.setModel(&counted.model);
    editor.setRootIndex(counted.model.index(0, 0));
    QVERIFY(editor.headSpear());
    QCOMPARE(editor.headSpear()->textDisplay(), QStringLiteral("T"));
}

void TestLanguage::shouldTitleNewSubjects_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("child");
    QTest::addColumn<QString>("head");

    QTest::newRow("source") << QString() << QStringLiteral("子主题") << QStringLiteral("自由主题");
    QTest::newRow("Chinese") << QStringLiteral("zh") << QStringLiteral("子主题")
                             << QStringLiteral("自由主题");
    QTest::newRow("English") << QStringLiteral("en") << QStringLiteral("Subtopic")
                             << QStringLiteral("Free topic");
}

void TestLanguage::shouldTitleNewSubjects()
{
    QFETCH(QString, child);
    QFETCH(QString, head);

    useLanguage();
    FishModel model;
    QVERIFY(model.insertRows(0, 1));
    const QModelIndex newHead = model.index(0, 0);
    QVERIFY(model.insertRows(0, 1, newHead));
    QCOMPARE(model.getTreeItem(newHead)->title(), head);
    QCOMPARE(model.getTreeItem(model.index(0, 0, newHead))->title(), child);
}

void TestLanguage::shouldDescribeASubject_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("shown");

    const QString source =
        QStringLiteral("T\n 负责人:Ann\n 创建时间:2020-02-03\n 截止时间:2021-03-04");
    QTest::newRow("source") << QString() << source;
    QTest::newRow("Chinese") << QStringLiteral("zh") << source;
    QTest::newRow("English")
        << QStringLiteral("en")
        << QStringLiteral(
               "T\n Responsible: Ann\n Created on: 2020-02-03\n Planned end: 2021-03-04");
}

void TestLanguage::shouldDescribeASubject()
{
    QFETCH(QString, shown);

    useLanguage();
    TreeItem subject;
    subject.setTitle(QStringLiteral("T"));
    subject.setManagerName(QStringLiteral("Ann"));
    subject.setCreateDate(QDateTime(QDate(2020, 2, 3), QTime(12, 0)).toMSecsSinceEpoch());
    subject.setPlanEndDate(QDateTime(QDate(2021, 3, 4), QTime(12, 0)).toMSecsSinceEpoch());
    QCOMPARE(subject.toolTipString(), shown);
}

void TestLanguage::shouldNameTheCommands_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("source") << QString()
                            << QStringList{QStringLiteral("Insert child subject"),
                                           QStringLiteral("Delete current selected"),
                                           QStringLiteral("Modify subject name")};
    QTest::newRow("Chinese") << QStringLiteral("zh")
                             << QStringList{QStringLiteral("插入子主题"),
                                            QStringLiteral("删除当前主题"),
                                            QStringLiteral("修改主题名称")};
    QTest::newRow("English") << QStringLiteral("en")
                             << QStringList{QStringLiteral("Insert child subject"),
                                            QStringLiteral("Delete subject"),
                                            QStringLiteral("Rename subject")};
}

void TestLanguage::shouldNameTheCommands()
{
    QFETCH(QStringList, names);

    useLanguage();
    Counted counted(QStringLiteral("T[A]"));
    const QModelIndex head = counted.model.index(0, 0);
    const QModelIndex child = counted.model.index(0, 0, head);
    QCOMPARE(QStringList({InsertChild(&counted.model, head).text(),
                          EditDelete(&counted.model, child).text(),
                          ModifyName(&counted.model, child, QStringLiteral("B")).text()}),
             names);
}

void TestLanguage::shouldOfferTheMenuOfABone_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("taskMode");
    QTest::addColumn<QStringList>("diagramMode");

    const QStringList tasks{QStringLiteral("新建子任务"), QStringLiteral("查看详情"),
                            QStringLiteral("用鱼骨图详细查看")};
    const QStringList nodes{QStringLiteral("编辑节点"), QStringLiteral("新建子节点"),
                            QStringLiteral("删除节点")};
    QTest::newRow("source") << QString() << tasks << nodes;
    QTest::newRow("Chinese") << QStringLiteral("zh") << tasks << nodes;
    QTest::newRow("English") << QStringLiteral("en")
                             << QStringList{QStringLiteral("New sub-task"),
                                            QStringLiteral("Show details"),
                                            QStringLiteral("Show as a diagram of its own")}
                             << QStringList{QStringLiteral("Edit subject"),
                                            QStringLiteral("New child subject"),
                                            QStringLiteral("Delete subject")};
}

void TestLanguage::shouldOfferTheMenuOfABone()
{
    QFETCH(QStringList, taskMode);
    QFETCH(QStringList, diagramMode);

    useLanguage();
    QCOMPARE(menuEntries(FISH_MODEL_NORMAL), taskMode);
    QCOMPARE(menuEntries(FISH_MODEL_DIAGRAM), diagramMode);
}

void TestLanguage::shouldNameNewFilesAlikeInEveryLanguage()
{
    static const QRegularExpression form(QStringLiteral("^fish[0-9]+\\.json$"));
    for (const char *language : {"", "zh", "en"}) {
        if (*language)
            Language::install(QLatin1String(language));
        QVERIFY2(form.match(FishInfo().fileName()).hasMatch(), language);
        cleanup();
    }
}

void TestLanguage::shouldSaveTheSameFileInEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("Chinese") << QStringLiteral("zh");
    QTest::newRow("English") << QStringLiteral("en");
}

void TestLanguage::shouldSaveTheSameFileInEveryLanguage()
{
    const QString sample =
        TestSupport::sourceFile(QStringLiteral("samples/delivery-delay-zh.fishbone.json"));
    const QTemporaryDir folder;
    const auto save = [&](const QString &name) {
        FishModel model;
        const int error = model.loadFishFromFile(sample);
        const QString path = folder.filePath(name);
        return error == MODEL_NO_ERROR && model.fishList().constFirst()->saveFile(path)
                   ? ProgramRunner::contentOf(path)
                   : QByteArray();
    };
    const QByteArray untranslated = save(QStringLiteral("a.json"));
    QVERIFY(!untranslated.isEmpty());
    useLanguage();
    QCOMPARE(save(QStringLiteral("b.json")), untranslated);
}

void TestLanguage::shouldChangeOnlyTheTitleOfANewSubject()
{
    QJsonObject expected = writtenNewChild();
    QCOMPARE(expected.value(QStringLiteral("title")).toString(), QStringLiteral("子主题"));
    Language::install(QStringLiteral("en"));
    expected.insert(QStringLiteral("title"), QStringLiteral("Subtopic"));
    QCOMPARE(writtenNewChild(), expected);
}

void TestLanguage::shouldBeTheLanguageOfTheProgram_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");

    const QStringList help{QStringLiteral("--help")};
    const QString chinese = QStringLiteral("编辑任务鱼骨图。");
    const QString english = QStringLiteral("Edits fishbone diagrams of tasks.");
    const auto asking = [](const char *language, const QStringList &arguments) {
        return QStringList{QStringLiteral("--language"), QLatin1String(language)} + arguments;
    };
    QTest::newRow("Chinese") << asking("zh", help) << QStringLiteral("C.UTF-8") << chinese;
    QTest::newRow("English") << asking("en", help) << QStringLiteral("zh_CN.UTF-8") << english;
    QTest::newRow("Chinese locale") << help << QStringLiteral("zh_CN.UTF-8") << chinese;
    QTest::newRow("German locale") << help << QStringLiteral("de_AT.UTF-8")
                                   << QStringLiteral("Bearbeitet Fischgrätendiagramme");
    QTest::newRow("other locale") << help << QStringLiteral("fi_FI.UTF-8") << english;
    QTest::newRow("no locale") << help << QStringLiteral("C.UTF-8") << english;
    const QStringList missing{QStringLiteral("--export"), QStringLiteral("a.png"),
                              QStringLiteral("missing.json")};
    QTest::newRow("Chinese complaint") << asking("zh", missing) << QStringLiteral("C.UTF-8")
                                       << QStringLiteral("无法读取 missing.json：文件不存在");
}

void TestLanguage::shouldBeTheLanguageOfTheProgram()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, locale);
    QFETCH(QString, text);

    const QTemporaryDir home;
    QProcessEnvironment environment = ProgramRunner::bareEnvironment(home.path());
    environment.insert(QStringLiteral("LC_ALL"), locale);
    environment.remove(QStringLiteral("LANGUAGE"));
    const ProgramRunner::Outcome outcome = ProgramRunner::run(arguments, environment);
    const QString output = outcome.out + outcome.err;
    QVERIFY2(output.contains(text), qPrintable(output));
}

FISHBONE_TEST(TestLanguage)
#include "tst_language.moc"
