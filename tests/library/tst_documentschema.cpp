// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyle.h>
#include <fishbone/undo/undostack.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/editorfixture.h>
#include <tests/support/sourcefolder.h>

#include <QDir>
#include <QFile>
#include <QFont>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPen>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using namespace TestSupport;

/** What is saved, compared with the schema of docs/fishbone.schema.json. */
class TestDocumentSchema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldHaveAnIdAndAVersion();
    void shouldFitWhatIsLoadedAndSaved();
    void shouldFitSubjectsWithOddValues();
    void shouldFitADocumentAfterEdits();
    void shouldFitTheStylesThatAreWritten();
    void shouldFindAMistake_data();
    void shouldFindAMistake();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    void write(const QJsonObject &object, const QString &name);

    QTemporaryDir m_folder;
};

namespace {

/** What the validator says about the files; empty when it finds nothing wrong. */
QString mistakes(const QStringList &files)
{
    QProcess validator;
    validator.setProcessChannelMode(QProcess::MergedChannels);
    validator.start(TestSupport::sourceFile(QStringLiteral("scripts/validate-documents")), files);
    if (!validator.waitForFinished() || validator.exitStatus() != QProcess::NormalExit)
        return QStringLiteral("The validator did not run: ") + validator.errorString();
    const QString output = QString::fromUtf8(validator.readAll());
    if (validator.exitCode() != 0 && output.isEmpty())
        return QStringLiteral("The validator failed without a word.");
    return output;
}

QStringList filesIn(const QString &folder)
{
    QStringList files;
    const QFileInfoList found = QDir(folder).entryInfoList({QStringLiteral("*.json")}, QDir::Files);
    for (const QFileInfo &info : found)
        files.append(info.filePath());
    return files;
}

void fill(SpearStyle &style, QRandomGenerator &random)
{
    const Qt::PenCapStyle caps[] = {Qt::FlatCap, Qt::SquareCap, Qt::RoundCap};
    const Qt::PenJoinStyle joins[] = {Qt::MiterJoin, Qt::BevelJoin, Qt::RoundJoin,
                                      Qt::SvgMiterJoin};
    for (int state = SpearStyle::ssNormal; state <= SpearStyle::ssLinked; ++state) {
        const auto which = SpearStyle::SpearState(state);
        QFont font(QStringLiteral("DejaVu Sans"), 1 + random.bounded(40), -1,
                   random.bounded(2) > 0);
        font.setWeight(random.bounded(2) > 0 ? QFont::Black : QFont::Thin);
        if (random.bounded(2) > 0)
            font.setStyleName(QStringLiteral("Book, Condensed"));
        style.setTextFont(which, font);
        style.setTextColor(which, QColor::fromRgba(random.generate()));
        style.setTextBkColor(which, QColor(Qt::transparent));
        style.setBroderPen(which, QPen(QColor::fromRgba(random.generate()), random.bounded(9) / 2.0,
                                       Qt::PenStyle(random.bounded(6)), caps[random.bounded(3)],
                                       joins[random.bounded(4)]));
    }
    style.setTextCount(random.bounded(40) - 20);
    style.setInheritanceParent(random.bounded(2) > 0);
}

} // namespace

void TestDocumentSchema::write(const QJsonObject &object, const QString &name)
{
    QFile out(file(name));
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(QJsonDocument(object).toJson());
}

void TestDocumentSchema::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QProcess check;
    check.start(QStringLiteral("python3"),
                {QStringLiteral("-c"), QStringLiteral("import jsonschema")});
    if (!check.waitForFinished() || check.exitCode() != 0)
        QSKIP("python3-jsonschema is not installed");
}

/** Programs keep the identity to know which documents they understand. */
void TestDocumentSchema::shouldHaveAnIdAndAVersion()
{
    QFile schema(sourceFile(QStringLiteral("docs/fishbone.schema.json")));
    QVERIFY(schema.open(QIODevice::ReadOnly));
    const QJsonObject object = QJsonDocument::fromJson(schema.readAll()).object();
    QCOMPARE(object.value(QStringLiteral("$id")).toString(),
             QStringLiteral("urn:fishbone:schema:diagram:1"));
}

void TestDocumentSchema::shouldFitWhatIsLoadedAndSaved()
{
    FishModel model;
    const QStringList samples = filesIn(TestSupport::sourceFile(QStringLiteral("samples")));
    QVERIFY(samples.size() >= 5);
    for (const QString &sample : samples)
        QCOMPARE(model.loadFishFromFile(sample), int(MODEL_NO_ERROR));
    QCOMPARE(model.loadFishTempl(), int(MODEL_NO_ERROR));
    // As little as a document can say.
    QVERIFY(
        model.loadJsonFish("{\"title\": 7, \"children\": [{\"followers\": [null, 1]}, {}, 3]}"));

    QStringList files;
    for (int i = 0; i < model.fishList().size(); ++i) {
        files.append(file(QStringLiteral("loaded%1.json").arg(i)));
        QVERIFY(model.fishList().at(i)->saveFile(files.constLast()));
    }
    QCOMPARE(mistakes(files), QString());
}

void TestDocumentSchema::shouldFitSubjectsWithOddValues()
{
    QRandomGenerator random(20260417);
    const int numbers[] = {std::numeric_limits<int>::min(), -1, 0, 1,
                           std::numeric_limits<int>::max()};
    const QStringList texts{QString(),
                            QString(QLatin1String("")),
                            QStringLiteral("\"\\\n\t"),
                            QStringLiteral("原因 😀"),
                            QString(QChar(0xd800)),
                            QString(QChar(0))};
    FishModel model;
    FishInfo *const document = loadDocument(model, documentFromText(QStringLiteral("Effect")));
    for (int i = 0; i < 200; ++i) {
        const auto number = [&] { return numbers[random.bounded(5)]; };
        const auto text = [&] { return texts.at(random.bounded(texts.size())); };
        auto subject =
            std::make_unique<TreeItem>(text(), text(), text(), text(), number(), nullptr);
        subject->setStatus(number());
        subject->setProgress(number());
        subject->setPriority(number());
        subject->setCreateDate(qint64(number()) * number());
        subject->setPlanEndDate(number());
        subject->setManagerName(text());
        subject->setCreatorId(text());
        subject->setUrl(text());
        subject->addFollower(text());
        SpearStyle style;
        fill(style, random);
        QJsonObject object;
        style.write(object);
        subject->setSpearStyle(object);
        TreeItem *const parent = model.getFishHeadTreeItem();
        QVERIFY(model.insertExistItemRows(model.indexFromItem(parent), {subject.release()}));
    }

    QVERIFY(document->saveFile(file(QStringLiteral("odd.json"))));
    QCOMPARE(mistakes({file(QStringLiteral("odd.json"))}), QString());
}

void TestDocumentSchema::shouldFitADocumentAfterEdits()
{
    EditorFixture fixture(QStringLiteral("Effect[Man[Training],Machine]"));
    QStringList files;
    const auto keep = [&] {
        files.append(file(QStringLiteral("edited%1.json").arg(files.size())));
        QVERIFY(fixture.editor.currentFishInfo()->saveFile(files.constLast()));
    };

    fixture.select({QStringLiteral("Man")});
    fixture.editor.insertChildSubject();
    keep();
    fixture.editor.copy();
    fixture.editor.paste();
    keep();
    fixture.editor.renameItem(fixture.index(QStringLiteral("Machine")), QStringLiteral("Tools"));
    keep();
    fixture.editor.undo();
    fixture.editor.undo();
    keep();
    fixture.editor.deleteItem(fixture.index(QStringLiteral("Man")));
    keep();
    QVERIFY(fixture.editor.currentFishInfo()->saveTmpFile());
    files.append(fixture.editor.currentFishInfo()->autoSaveFile());

    QCOMPARE(mistakes(files), QString());
}

void TestDocumentSchema::shouldFitTheStylesThatAreWritten()
{
    QRandomGenerator random(20260418);
    QStringList files;
    for (int i = 0; i < 20; ++i) {
        SpearStyle style;
        if (i > 0)
            fill(style, random);
        QJsonObject object;
        style.write(object);
        files.append(file(QStringLiteral("style%1.spearstyle").arg(i)));
        write(object, QFileInfo(files.constLast()).fileName());
    }
    QCOMPARE(mistakes(files), QString());
}

void TestDocumentSchema::shouldFindAMistake_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value"); // undefined: without the key

    QTest::newRow("no title") << QStringLiteral("title") << QJsonValue(QJsonValue::Undefined);
    QTest::newRow("no uuid") << QStringLiteral("uuid") << QJsonValue(QJsonValue::Undefined);
    QTest::newRow("a title that is no text") << QStringLiteral("title") << QJsonValue(1);
    QTest::newRow("a fraction") << QStringLiteral("status") << QJsonValue(1.5);
    QTest::newRow("children that are no list")
        << QStringLiteral("children") << QJsonValue(QJsonObject());
    QTest::newRow("a child that is no subject")
        << QStringLiteral("children") << QJsonValue(QJsonArray{QJsonObject()});
    QTest::newRow("a colour that is none") << QStringLiteral("colour") << QJsonValue(1);
    QTest::newRow("a verdict that is none") << QStringLiteral("verdict") << QJsonValue(QString());
    QTest::newRow("no votes at all") << QStringLiteral("votes") << QJsonValue(0);
    QTest::newRow("no followers at all") << QStringLiteral("followers") << QJsonValue(QJsonArray());
    QTest::newRow("an incomplete style")
        << QStringLiteral("spearstyle")
        << QJsonValue(QJsonObject{{QStringLiteral("textCount"), 1}});
}

void TestDocumentSchema::shouldFindAMistake()
{
    QFETCH(const QString, key);
    QFETCH(const QJsonValue, value);
    FishModel model;
    loadDocument(model, documentFromText(QStringLiteral("Effect[Man]")));
    QJsonObject object;
    FishModel::write(object, model.getFishHeadTreeItem(), true);
    write(object, QStringLiteral("sound.json"));
    QCOMPARE(mistakes({file(QStringLiteral("sound.json"))}), QString());

    if (value.isUndefined())
        object.remove(key);
    else
        object[key] = value;
    write(object, QStringLiteral("broken.json"));

    QVERIFY(
        mistakes({file(QStringLiteral("broken.json"))}).contains(QLatin1String("broken.json: /")));
}

FISHBONE_TEST(TestDocumentSchema)
#include "tst_documentschema.moc"
