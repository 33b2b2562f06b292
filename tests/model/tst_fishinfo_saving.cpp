// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishinfo.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>

#include <tests/support/documents.h>
#include <tests/support/messagebox.h>
#include <tests/support/modaldriver.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QJsonDocument>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStandardPaths>
#include <QStringListModel>
#include <QTemporaryDir>
#include <QtTest>

using namespace TestSupport;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

bool makeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QString autoSaveFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/tmp/fishdiagram/");
}

/** A style that nests as deep as styles do. */
QJsonObject deepStyle()
{
    return QJsonDocument::fromJson(
               R"({"textCount": 1, "spearStates": [{"state": 0, "textColor": {"r": 1, "a": 255}}]})")
        .object();
}

QStringList s_debugLines;

void collectDebug(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtDebugMsg)
        s_debugLines.append(QString::fromLatin1(context.category) + QStringLiteral(": ") + text);
}

/** Collects debug lines with their category as long as it lives. */
class DebugLines
{
    Q_DISABLE_COPY(DebugLines)

public:
    DebugLines()
        : m_before(qInstallMessageHandler(collectDebug))
    {
        s_debugLines.clear();
    }
    ~DebugLines() { qInstallMessageHandler(m_before); }

    QStringList lines() const { return s_debugLines; }

private:
    QtMessageHandler m_before;
};

} // namespace

/** Saving a document, asking to save it, and autosave. */
class TestFishInfoSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void shouldWriteTheHeadIndented();
    void shouldReplaceTheFileWhole();
    void shouldLeaveAnEmptyFileWithoutAModel();
    void shouldSaveForAnyModel();
    void shouldSaveADocumentWithoutAHead();
    void shouldReportFilesThatCannotBeWritten_data();
    void shouldReportFilesThatCannotBeWritten();
    void shouldFollowALinkAndKeepPermissions();
    void shouldWriteInPlaceWhereTheFolderIsReadOnly();
    void shouldRefuseWhatCouldNotBeReadAgain_data();
    void shouldRefuseWhatCouldNotBeReadAgain();
    void shouldForgetWhyItFailedOnceItIsSaved();
    void shouldSaveUnderItsName();
    void shouldAskForANameWhileItHasNone();
    void shouldProposeItsStrippedName();
    void shouldReportWhenTheChosenFileCannotBeWritten();
    void shouldSaveNothingWhenNoNameIsChosen();
    void shouldAskNothingWhenNothingChanged();
    void shouldAskWhetherToSave();
    void shouldDoAsTheUserAnswers_data();
    void shouldDoAsTheUserAnswers();
    void shouldSaveAsTheHostDoes_data();
    void shouldSaveAsTheHostDoes();
    void shouldReportASaveThatFailsAfterTheQuestion();
    void shouldSurviveItsOwnEndWhileItAsks();
    void shouldSurviveItsOwnEndWhileANameIsChosen();
    void shouldAutoSaveUnderAFreshName();
    void shouldAutoSaveANamedDocumentInItsFile();
    void shouldAutoSaveWhereItIsTold();
    void shouldNameAutoSavesAfterTheFirstHead();
    void shouldTellWhenItMakesTheFolder();
    void shouldAutoSaveUnderSafeNames_data();
    void shouldAutoSaveUnderSafeNames();
    void shouldNeverAutoSaveTwoDocumentsUnderOneName();
    void shouldTouchNothingWithoutModelOrHead_data();
    void shouldTouchNothingWithoutModelOrHead();
    void shouldRememberTheNameOfAFailedAutoSave();
    void shouldDeleteOldAutoSaves();

private:
    QString path(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FishModel> m_model;
    FishInfo *m_info = nullptr;
};

void TestFishInfoSaving::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QStandardPaths::setTestModeEnabled(true);
}

void TestFishInfoSaving::init()
{
    QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/tmp")).removeRecursively();
    m_folder = std::make_unique<QTemporaryDir>();
    m_model = std::make_unique<FishModel>();
    m_info = loadDocument(*m_model, QStringLiteral("Plan[a,b]"));
}

void TestFishInfoSaving::cleanup()
{
    m_model.reset();
    m_folder.reset();
}

void TestFishInfoSaving::shouldWriteTheHeadIndented()
{
    QVERIFY(m_info->saveFile(path("effect.json")));

    QJsonObject head;
    FishModel::write(head, m_info->treeItem()->childAtIndex(0), true);
    QCOMPARE(contentOf(path("effect.json")), QJsonDocument(head).toJson());
    QVERIFY(contentOf(path("effect.json")).startsWith("{\n    \"children\": [\n        {\n"));
}

void TestFishInfoSaving::shouldReplaceTheFileWhole()
{
    QVERIFY(makeFile(path("effect.json"), QByteArray(100000, 'x')));

    QVERIFY(m_info->saveFile(path("effect.json")));

    QVERIFY(!contentOf(path("effect.json")).contains('x'));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("effect.json")));
}

void TestFishInfoSaving::shouldLeaveAnEmptyFileWithoutAModel()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    FishInfo info;
    info.loadFish(documentFromText(QStringLiteral("A")), nullptr);

    QVERIFY(!info.saveFile(path("effect.json")));

    QCOMPARE(contentOf(path("effect.json")), QByteArray());
}

void TestFishInfoSaving::shouldSaveForAnyModel()
{
    QStandardItemModel model;
    FishInfo info;
    info.loadFish(documentFromText(QStringLiteral("A")), &model);

    QVERIFY(info.saveFile(path("effect.json")));

    QVERIFY(contentOf(path("effect.json")).contains("\"u-A\""));
}

void TestFishInfoSaving::shouldSaveADocumentWithoutAHead()
{
    m_info->reset();

    QVERIFY(m_info->saveFile(path("effect.json")));

    QCOMPARE(QJsonDocument::fromJson(contentOf(path("effect.json"))), QJsonDocument(QJsonObject()));
}

void TestFishInfoSaving::shouldReportFilesThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("no name") << QString();
    QTest::newRow("folder that is missing") << QStringLiteral("missing/effect.json");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("a file as folder") << QStringLiteral("file/effect.json");
    if (QFile::exists(QStringLiteral("/dev/full")))
        QTest::newRow("full device") << QStringLiteral("/dev/full");
}

void TestFishInfoSaving::shouldReportFilesThatCannotBeWritten()
{
    QFETCH(QString, path);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(makeFile(m_folder->filePath(QStringLiteral("file")), "old"));
    if (!path.isEmpty())
        path = m_folder->filePath(path);

    QVERIFY(!m_info->saveFile(path));

    QVERIFY(!m_info->saveError().isEmpty());
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
        QStringList({QStringLiteral("file"), QStringLiteral("folder")}));
    QCOMPARE(contentOf(m_folder->filePath(QStringLiteral("file"))), QByteArray("old"));
    QVERIFY(!QFileInfo(QStringLiteral("/dev/full")).isFile());
}

void TestFishInfoSaving::shouldFollowALinkAndKeepPermissions()
{
    QVERIFY(makeFile(path("target.json"), "old"));
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser |
                                           QFile::WriteUser | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(path("target.json"), permissions));
    QVERIFY(QFile::link(path("target.json"), path("link.json")));

    QVERIFY(m_info->saveFile(path("link.json")));

    QVERIFY(QFileInfo(path("link.json")).isSymLink());
    QVERIFY(contentOf(path("target.json")).contains("Plan"));
    QCOMPARE(QFile::permissions(path("target.json")), permissions);
}

void TestFishInfoSaving::shouldWriteInPlaceWhereTheFolderIsReadOnly()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    const QFile::Permissions all = QFile::permissions(m_folder->path());
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const bool isReadOnly = !makeFile(path("other"), "");

    const bool saved = m_info->saveFile(path("effect.json"));
    const bool savedNew = m_info->saveFile(path("new.json"));

    QVERIFY(QFile::setPermissions(m_folder->path(), all));
    QVERIFY(saved);
    QVERIFY(contentOf(path("effect.json")).contains("Plan"));
    QCOMPARE(savedNew, !isReadOnly); // the superuser writes anywhere
}

void TestFishInfoSaving::shouldRefuseWhatCouldNotBeReadAgain_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("hasStyle");
    QTest::addColumn<bool>("isSaved");

    QTest::newRow("as deep as can be read") << 512 << false << true;
    QTest::newRow("a level too deep") << 513 << false << false;
    QTest::newRow("far too deep") << 100000 << false << false;
    QTest::newRow("with a style as deep as can be read") << 510 << true << true;
    QTest::newRow("with a style that is too deep") << 511 << true << false;
}

void TestFishInfoSaving::shouldRefuseWhatCouldNotBeReadAgain()
{
    QFETCH(int, depth);
    QFETCH(bool, hasStyle);
    QFETCH(bool, isSaved);
    std::unique_ptr<TreeItem> chain = makeChain(depth);
    TreeItem *last = chain.get();
    while (last->childCount() > 0)
        last = last->childAtIndex(0);
    if (hasStyle)
        last->setSpearStyle(deepStyle());
    addDocument(*m_model, std::move(chain));
    QVERIFY(makeFile(path("effect.json"), "old"));
    const DebugLines debug;

    QCOMPARE(m_model->fishList().last()->saveFile(path("effect.json")), isSaved);

    if (isSaved) {
        QCOMPARE(m_model->loadFishFromFile(path("effect.json")), 0);
        QCOMPARE(m_model->fishList().last()->nodeCount(), depth);
    } else {
        QCOMPARE(contentOf(path("effect.json")), QByteArray("old"));
        QCOMPARE(debug.lines().size(), 1);
        QCOMPARE(m_model->fishList().last()->saveError(),
                 QStringLiteral("the diagram nests too deep to be read again"));
    }
}

void TestFishInfoSaving::shouldForgetWhyItFailedOnceItIsSaved()
{
    QCOMPARE(m_info->saveError(), QString());
    QVERIFY(!m_info->saveFile(m_folder->path()));
    QVERIFY(!m_info->saveError().isEmpty());
    QVERIFY(m_info->saveFile(path("effect.json")));
    QCOMPARE(m_info->saveError(), QString());
    FishInfo unseen;
    QVERIFY(!unseen.saveFile(path("effect.json")));
    QCOMPARE(unseen.saveError(), QStringLiteral("no model shows the document"));
}

void TestFishInfoSaving::shouldSaveUnderItsName()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));
    m_info->setModified(true);

    QVERIFY(m_info->save());

    QVERIFY(contentOf(path("effect.json")).contains("Plan"));
    QVERIFY(m_info->modified()); // the host's to clear
}

void TestFishInfoSaving::shouldAskForANameWhileItHasNone()
{
    m_info->setModified(true);
    const QString name = m_info->fileName();
    const QString chosen = path("chosen.json");
    QString caption;
    const auto choose = [&](QFileDialog &dialog) {
        caption = dialog.windowTitle();
        dialog.selectFile(chosen);
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    };
    for (int i = 0; i < 2; ++i) {
        QFile::remove(chosen);
        const ModalDriver<QFileDialog> user(choose);

        QVERIFY(m_info->save());

        QVERIFY(user.isDone());
        QCOMPARE(caption, QStringLiteral("Save As"));
        QVERIFY(contentOf(chosen).contains("Plan"));
        // It is still the same unnamed document, so the next time it asks again.
        QVERIFY(m_info->isUntitled());
        QVERIFY(m_info->modified());
        QCOMPARE(m_info->fileName(), name);
    }
}

void TestFishInfoSaving::shouldProposeItsStrippedName()
{
    m_info->setFileName(QStringLiteral("http://example.org/d/effect.json"));
    QDir().mkpath(SystemHelper::documentsLocation());
    QString folder;
    QStringList files;
    const ModalDriver<QFileDialog> user([&](QFileDialog &dialog) {
        folder = dialog.directory().absolutePath();
        files = dialog.selectedFiles();
        dialog.reject();
    });

    QVERIFY(!m_info->saveAs());

    QVERIFY(user.isDone());
    QCOMPARE(folder, QDir(SystemHelper::documentsLocation()).absolutePath());
    QCOMPARE(files,
             QStringList(SystemHelper::documentsLocation() + QStringLiteral("/effect.json")));
}

void TestFishInfoSaving::shouldReportWhenTheChosenFileCannotBeWritten()
{
    addDocument(*m_model, makeChain(600)); // too deep to be read again
    const QString chosen = path("deep.json");
    const ModalDriver<QFileDialog> user([&chosen](QFileDialog &dialog) {
        dialog.selectFile(chosen);
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });

    QVERIFY(!m_model->fishList().last()->saveAs());

    QVERIFY(user.isDone());
    QVERIFY(!QFileInfo::exists(chosen));
}

void TestFishInfoSaving::shouldSaveNothingWhenNoNameIsChosen()
{
    const ModalDriver<QFileDialog> user([](QFileDialog &dialog) { dialog.reject(); });

    QVERIFY(!m_info->save());

    QVERIFY(user.isDone());
}

void TestFishInfoSaving::shouldAskNothingWhenNothingChanged()
{
    const ModalDriver<QMessageBox> user([](QMessageBox &box) { box.reject(); });

    QVERIFY(m_info->maybeSave());

    QVERIFY(!user.isDone());
}

void TestFishInfoSaving::shouldAskWhetherToSave()
{
    m_info->setFileName(QStringLiteral("/x/y/effect.json"));
    m_info->setModified(true);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));

    m_info->maybeSave();

    QVERIFY(user.isDone());
    QCOMPARE(message.title, QStringLiteral("FishInfo"));
    QCOMPARE(message.text, QStringLiteral("'effect.json' has been modified.\n"
                                          "Do you want to save your changes?"));
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
}

void TestFishInfoSaving::shouldDoAsTheUserAnswers_data()
{
    QTest::addColumn<int>("button"); // 0: Esc
    QTest::addColumn<bool>("result");
    QTest::addColumn<bool>("saves");

    QTest::newRow("save") << int(QMessageBox::Save) << true << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
    QTest::newRow("escape") << 0 << false << false;
}

void TestFishInfoSaving::shouldDoAsTheUserAnswers()
{
    QFETCH(int, button);
    QFETCH(bool, result);
    QFETCH(bool, saves);
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));
    m_info->setModified(true);
    const ModalDriver<QMessageBox> user([button](QMessageBox &box) {
        if (button == 0)
            QTest::keyClick(&box, Qt::Key_Escape);
        else
            box.button(QMessageBox::StandardButton(button))->click();
    });

    QCOMPARE(m_info->maybeSave(), result);

    QVERIFY(user.isDone());
    QCOMPARE(contentOf(path("effect.json")) != QByteArray("old"), saves);
    QVERIFY(m_info->modified());
}

void TestFishInfoSaving::shouldSaveAsTheHostDoes_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("canSave");
    QTest::addColumn<int>("calls");
    QTest::addColumn<bool>("result");

    QTest::newRow("saved") << int(QMessageBox::Save) << true << 1 << true;
    QTest::newRow("not saved") << int(QMessageBox::Save) << false << 1 << false;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << 0 << true;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << true << 0 << false;
}

void TestFishInfoSaving::shouldSaveAsTheHostDoes()
{
    QFETCH(int, button);
    QFETCH(bool, canSave);
    QFETCH(int, calls);
    QFETCH(bool, result);
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));
    m_info->setModified(true);
    const ModalDriver<QMessageBox> user(
        [button](QMessageBox &box) { box.button(QMessageBox::StandardButton(button))->click(); });
    int called = 0;

    QCOMPARE(m_info->maybeSave([&] {
        ++called;
        return canSave;
    }),
             result);

    QVERIFY(user.isDone());
    QCOMPARE(called, calls);
    QCOMPARE(contentOf(path("effect.json")), QByteArray("old"));
}

void TestFishInfoSaving::shouldReportASaveThatFailsAfterTheQuestion()
{
    m_info->setCurrentFile(path("missing.json")); // has no name then
    m_info->setModified(true);
    const ModalDriver<QMessageBox> user(
        [](QMessageBox &box) { box.button(QMessageBox::Save)->click(); });

    QVERIFY(!m_info->maybeSave());

    QVERIFY(user.isDone());
}

void TestFishInfoSaving::shouldSurviveItsOwnEndWhileItAsks()
{
    m_info->setModified(true);
    const ModalDriver<QMessageBox> user([this](QMessageBox &box) {
        m_model->unloadFish(m_info);
        box.button(QMessageBox::Save)->click();
    });

    QVERIFY(!m_info->maybeSave());

    QVERIFY(user.isDone());
    QCOMPARE(m_model->rowCount(), 0);
}

void TestFishInfoSaving::shouldSurviveItsOwnEndWhileANameIsChosen()
{
    const QString chosen = path("chosen.json");
    const ModalDriver<QFileDialog> user([this, &chosen](QFileDialog &dialog) {
        m_model->unloadFish(m_info);
        dialog.selectFile(chosen);
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });

    QVERIFY(!m_info->saveAs());

    QVERIFY(user.isDone());
    QVERIFY(!QFile::exists(chosen));
}

void TestFishInfoSaving::shouldAutoSaveUnderAFreshName()
{
    const qint64 before = QDateTime::currentMSecsSinceEpoch();

    QVERIFY(m_info->saveTmpFile());

    const QString file = m_info->autoSaveFile();
    QVERIFY(file.startsWith(autoSaveFolder() + QStringLiteral("Plan.")));
    const qint64 stamp = file.mid(autoSaveFolder().size() + 5).toLongLong();
    QVERIFY(stamp >= before);
    QVERIFY(stamp <= QDateTime::currentMSecsSinceEpoch() + 1000);
    QVERIFY(contentOf(file).contains("u-Plan"));
    QVERIFY(m_info->isUntitled());

    nodeTitled(*m_model, QStringLiteral("Plan"))->setTitle(QStringLiteral("Renamed"));
    QVERIFY(m_info->saveTmpFile());
    QCOMPARE(m_info->autoSaveFile(), file);
    QVERIFY(contentOf(file).contains("Renamed"));
    QCOMPARE(QDir(autoSaveFolder()).entryList(QDir::Files).size(), 1);
}

void TestFishInfoSaving::shouldAutoSaveANamedDocumentInItsFile()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));

    QVERIFY(m_info->saveTmpFile());

    QVERIFY(contentOf(path("effect.json")).contains("Plan"));
    QVERIFY(!QFileInfo::exists(autoSaveFolder()));
}

void TestFishInfoSaving::shouldAutoSaveWhereItIsTold()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));
    m_info->setAutoSaveFile(path("auto"));

    QVERIFY(m_info->saveTmpFile());

    QCOMPARE(contentOf(path("effect.json")), QByteArray("old"));
    QVERIFY(contentOf(path("auto")).contains("Plan"));
}

void TestFishInfoSaving::shouldNameAutoSavesAfterTheFirstHead()
{
    FishInfo *const second = loadDocument(*m_model, QStringLiteral("Other"));

    QVERIFY(second->saveTmpFile());

    QVERIFY(second->autoSaveFile().startsWith(autoSaveFolder() + QStringLiteral("Plan.")));
    QVERIFY(contentOf(second->autoSaveFile()).contains("Other"));
}

void TestFishInfoSaving::shouldTellWhenItMakesTheFolder()
{
    const DebugLines debug;
    QVERIFY(m_info->saveTmpFile());
    QCOMPARE(debug.lines(), QStringList(QStringLiteral("default: true")));

    m_info->setAutoSaveFile(QString());
    QVERIFY(m_info->saveTmpFile());
    QCOMPARE(debug.lines().size(), 1);

    QVERIFY(
        QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/tmp")).removeRecursively());
    QVERIFY(
        makeFile(QCoreApplication::applicationDirPath() + QStringLiteral("/tmp"), "in the way"));
    m_info->setAutoSaveFile(QString());
    QVERIFY(!m_info->saveTmpFile());
    QVERIFY(QFile::remove(QCoreApplication::applicationDirPath() + QStringLiteral("/tmp")));
    QCOMPARE(debug.lines().last(), QStringLiteral("default: false"));
}

void TestFishInfoSaving::shouldAutoSaveUnderSafeNames_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");

    const auto addSame = [](const char *tag, const QString &title) {
        QTest::newRow(tag) << title << title;
    };
    addSame("ordinary", QStringLiteral("My plan, 2nd (draft)"));
    addSame("dots", QStringLiteral(".."));
    addSame("nothing", QString());
    addSame("other letters", QStringLiteral("自由主题 Ärger"));
    addSame("as long as possible", QString(200, QLatin1Char('a')));
    QTest::newRow("separators") << QStringLiteral("../../etc\\x") << QStringLiteral(".._.._etc_x");
    QTest::newRow("control characters")
        << QStringLiteral("a\nb\tc") + QChar(0) + QChar(0x7f) + QChar(0x85) + QLatin1Char('d')
        << QStringLiteral("a_b_c___d");
    QTest::newRow("too long") << QString(5000, QLatin1Char('a')) << QString(200, QLatin1Char('a'));
    QTest::newRow("too long in bytes") << QString(100, QChar(0x4e3b)) << QString(66, QChar(0x4e3b));
    QString pairs;
    for (int i = 0; i < 60; ++i)
        pairs += QString::fromUcs4(U"\U0001F41F", 1);
    QTest::newRow("too long in pairs") << pairs << pairs.left(100);
    QTest::newRow("pair at the end")
        << QStringLiteral("abc") + pairs << QStringLiteral("abc") + pairs.left(98);
}

void TestFishInfoSaving::shouldAutoSaveUnderSafeNames()
{
    QFETCH(QString, title);
    QFETCH(QString, name);
    nodeTitled(*m_model, QStringLiteral("Plan"))->setTitle(title);

    QVERIFY(m_info->saveTmpFile());

    const QString file = m_info->autoSaveFile();
    QCOMPARE(file.left(file.lastIndexOf(QLatin1Char('.'))), autoSaveFolder() + name);
    QVERIFY(QFileInfo(file).isFile());
    QCOMPARE(QDir(autoSaveFolder()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestFishInfoSaving::shouldNeverAutoSaveTwoDocumentsUnderOneName()
{
    constexpr int documents = 200;
    while (m_model->rowCount() < documents)
        loadDocument(*m_model, QStringLiteral("Plan"));
    // What another program took for itself meanwhile.
    QVERIFY(QDir().mkpath(autoSaveFolder()));
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    for (int i = 0; i < 500; ++i)
        QVERIFY(makeFile(autoSaveFolder() + QStringLiteral("Plan.%1").arg(now + i), "theirs"));

    QSet<QString> names;
    for (FishInfo *info : m_model->fishList()) {
        QVERIFY(info->saveTmpFile());
        names.insert(info->autoSaveFile());
    }

    QCOMPARE(names.size(), documents);
    for (int i = 0; i < 500; ++i)
        QCOMPARE(contentOf(autoSaveFolder() + QStringLiteral("Plan.%1").arg(now + i)),
                 QByteArray("theirs"));
}

void TestFishInfoSaving::shouldTouchNothingWithoutModelOrHead_data()
{
    QTest::addColumn<bool>("hasModel");
    QTest::addColumn<bool>("hasHead");
    QTest::addColumn<bool>("firstHasHead");
    QTest::addColumn<bool>("hasFile");

    QTest::newRow("no model") << false << true << true << false;
    QTest::newRow("no model, but a file") << false << true << true << true;
    QTest::newRow("no head") << true << false << true << false;
    QTest::newRow("no head, but a file") << true << false << true << true;
    QTest::newRow("no first head to name it after") << true << true << false << false;
}

void TestFishInfoSaving::shouldTouchNothingWithoutModelOrHead()
{
    QFETCH(bool, hasModel);
    QFETCH(bool, hasHead);
    QFETCH(bool, firstHasHead);
    QFETCH(bool, hasFile);
    FishInfo *const info = loadDocument(*m_model, QStringLiteral("Second"));
    QVERIFY(makeFile(path("auto"), "old"));
    if (hasFile)
        info->setAutoSaveFile(path("auto"));
    if (!hasModel)
        info->setModel(nullptr);
    if (!hasHead)
        info->reset();
    if (!firstHasHead)
        m_info->reset();

    QVERIFY(!info->saveTmpFile());

    QCOMPARE(contentOf(path("auto")), QByteArray("old"));
    QVERIFY(!QFileInfo::exists(autoSaveFolder()));
    QCOMPARE(info->autoSaveFile(), hasFile ? path("auto") : QString());

    QStringListModel other; // in which nothing has a head
    info->setModel(&other);
    info->setAutoSaveFile(QString());
    QVERIFY(!info->saveTmpFile());
    QVERIFY(!QFileInfo::exists(autoSaveFolder()));
}

void TestFishInfoSaving::shouldRememberTheNameOfAFailedAutoSave()
{
    addDocument(*m_model, makeChain(600));
    FishInfo *const info = m_model->fishList().last();

    QVERIFY(!info->saveTmpFile());

    QVERIFY(info->autoSaveFile().startsWith(autoSaveFolder() + QStringLiteral("Plan.")));
    QCOMPARE(QDir(autoSaveFolder()).entryList(QDir::Files), QStringList());
}

void TestFishInfoSaving::shouldDeleteOldAutoSaves()
{
    QVERIFY(m_info->saveTmpFile());

    QVERIFY(m_info->deleteOldTmpFile(m_info->autoSaveFile()));
    QVERIFY(!QFileInfo::exists(m_info->autoSaveFile()));
    QVERIFY(!m_info->deleteOldTmpFile(m_info->autoSaveFile()));
}

QTEST_MAIN(TestFishInfoSaving)

#include "tst_fishinfo_saving.moc"
