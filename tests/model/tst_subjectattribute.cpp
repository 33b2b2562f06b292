// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/subjectattribute.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/filecontent.h>
#include <tests/support/sourcefolder.h>

#include <QBuffer>
#include <QComboBox>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

using namespace TestSupport;

namespace {

/** A value that no new subject has, another one for each attribute. */
QVariant unusual(const SubjectAttribute &attribute)
{
    const QString key = attribute.key();
    const int number = 3 + key.size();
    switch (attribute.kind()) {
    case SubjectAttribute::Text:
        return QStringLiteral("the ") + key;
    case SubjectAttribute::Number:
        return number;
    case SubjectAttribute::Date:
        return qlonglong(Q_INT64_C(1500000000000) + number);
    case SubjectAttribute::Texts:
        return QStringList{key, QStringLiteral("b;c")};
    case SubjectAttribute::Flag:
        return false;
    case SubjectAttribute::Style:
        return QJsonObject{{QStringLiteral("textCount"), 7},
                           {QStringLiteral("inheritanceParent"), false},
                           {QStringLiteral("spearStates"), QJsonArray()}};
    }
    return {};
}

QByteArray contentOf(const char *path)
{
    return TestSupport::contentOf(sourceFile(QString::fromLatin1(path)));
}

void addAttributes()
{
    QTest::addColumn<QString>("key");
    for (const SubjectAttribute &attribute : SubjectAttribute::all())
        QTest::newRow(attribute.key().data()) << QString(attribute.key());
}

const SubjectAttribute &attributeOf(const QString &key)
{
    return *SubjectAttribute::find(key);
}

} // namespace

/** The one list of a subject's attributes, and all lists that follow it. */
class TestSubjectAttribute : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKnowItsKeys();
    void shouldBeInOrder();
    void shouldGiveAndTake_data() { addAttributes(); }
    void shouldGiveAndTake();
    void shouldBeReadAndWritten_data() { addAttributes(); }
    void shouldBeReadAndWritten();
    void shouldBeNoOtherField_data() { addAttributes(); }
    void shouldBeNoOtherField();
    void shouldBeEdited_data() { addAttributes(); }
    void shouldBeEdited();
    void shouldBeExchanged_data() { addAttributes(); }
    void shouldBeExchanged();
    void shouldBeInTheSchema_data() { addAttributes(); }
    void shouldBeInTheSchema();
    void shouldBeInTheDescriptionOfTheFormat_data() { addAttributes(); }
    void shouldBeInTheDescriptionOfTheFormat();
    void shouldBeAColumnOfTheSearch();
};

void TestSubjectAttribute::shouldKnowItsKeys()
{
    QSet<QString> keys;
    for (const SubjectAttribute &attribute : SubjectAttribute::all())
        keys.insert(attribute.key());
    QCOMPARE(keys.size(), SubjectAttribute::all().size());
    for (const QString &key : qAsConst(keys)) {
        QVERIFY(SubjectAttribute::find(key));
        QCOMPARE(QString(SubjectAttribute::find(key)->key()), key);
        QVERIFY(!SubjectAttribute::find(key + QLatin1Char('x')));
        QVERIFY(!SubjectAttribute::find(key.toUpper()));
    }
    QVERIFY(!SubjectAttribute::find(QString()));
    QVERIFY(!SubjectAttribute::find(QStringLiteral("children")));
}

void TestSubjectAttribute::shouldBeInOrder()
{
    QStringList keys;
    for (const SubjectAttribute &attribute : SubjectAttribute::inKeyOrder())
        keys.append(attribute.key());
    QStringList sorted = keys;
    sorted.sort();
    QCOMPARE(keys, sorted);
    QCOMPARE(keys.size(), SubjectAttribute::all().size());
}

void TestSubjectAttribute::shouldGiveAndTake()
{
    QFETCH(QString, key);
    const SubjectAttribute &attribute = attributeOf(key);
    TreeItem item;
    const QJsonObject before = EditAttributes::stateOf(item);
    attribute.set(item, unusual(attribute));
    QCOMPARE(attribute.get(item), unusual(attribute));
    // Nothing else has changed with it.
    const QJsonObject after = EditAttributes::stateOf(item);
    for (const QString &other : before.keys())
        QCOMPARE(after.value(other) == before.value(other), other != key);
    TreeItem copy;
    attribute.copy(copy, item);
    QCOMPARE(attribute.get(copy), unusual(attribute));
}

void TestSubjectAttribute::shouldBeReadAndWritten()
{
    QFETCH(QString, key);
    const SubjectAttribute &attribute = attributeOf(key);
    TreeItem item;
    attribute.set(item, unusual(attribute));
    const QJsonObject read{{key, attribute.value(item)}};
    QCOMPARE(attribute.get(TreeItem(read)), unusual(attribute));

    QJsonObject written;
    FishModel::write(written, &item, true);
    QCOMPARE(written.contains(key), attribute.writing() != SubjectAttribute::Never);
    if (written.contains(key))
        QCOMPARE(written.value(key), attribute.value(item));
    QJsonObject fresh;
    TreeItem made;
    FishModel::write(fresh, &made, true);
    QCOMPARE(fresh.contains(key), attribute.writing() == SubjectAttribute::Always ||
                                      attribute.writing() == SubjectAttribute::UnlessNull);
}

void TestSubjectAttribute::shouldBeNoOtherField()
{
    QFETCH(QString, key);
    const TreeItem item(QJsonObject{{key, attributeOf(key).value(TreeItem())}});
    QVERIFY(!item.hasOtherFields());
}

void TestSubjectAttribute::shouldBeEdited()
{
    QFETCH(QString, key);
    const SubjectAttribute &attribute = attributeOf(key);
    CommandFixture f(QStringLiteral("H[A]"));
    TreeItem record;
    attribute.set(record, unusual(attribute));
    const QJsonObject before = EditAttributes::stateOf(*f.node("A"));
    const QVariant former = attribute.get(*f.node("A"));
    QJsonObject after = before;
    after.insert(key, attribute.value(record));
    TreeItem *const node = f.node("A");
    EditAttributes command(f.model.get());

    QCOMPARE(command.add(f.index("A"), before, after),
             attribute.uses().testFlag(SubjectAttribute::Edited));
    command.redo();
    QCOMPARE(attribute.get(*node) == unusual(attribute),
             attribute.uses().testFlag(SubjectAttribute::Edited));
    command.undo();
    QCOMPARE(attribute.get(*node), former);
}

void TestSubjectAttribute::shouldBeExchanged()
{
    QFETCH(QString, key);
    const SubjectAttribute &attribute = attributeOf(key);
    if (!attribute.uses().testFlag(SubjectAttribute::Exchanged))
        return;
    using Format = DiagramExchange::Format;
    for (const Format format : {Format::Csv, Format::Opml, Format::FreeMind}) {
        TreeItem head(QStringLiteral("H"), QStringLiteral("u-h"), QString(), QString(), 0);
        head.appendChild(
            new TreeItem(QStringLiteral("A"), QStringLiteral("u-a"), QString(), QString(), 0));
        attribute.set(*head.childAtIndex(0), unusual(attribute));
        QBuffer buffer;
        QVERIFY(buffer.open(QIODevice::ReadWrite));
        QString error;
        QVERIFY2(DiagramExchange::write(buffer, head, format, &error), qPrintable(error));
        buffer.seek(0);
        const auto read = DiagramExchange::read(buffer, format, &error);
        QVERIFY2(read, qPrintable(error));
        QVERIFY2(attribute.get(*read->childAtIndex(0)) == unusual(attribute),
                 qPrintable(DiagramExchange::id(format)));
    }
}

void TestSubjectAttribute::shouldBeInTheSchema()
{
    QFETCH(QString, key);
    const SubjectAttribute &attribute = attributeOf(key);
    const QJsonObject subject = QJsonDocument::fromJson(contentOf("docs/fishbone.schema.json"))
                                    .object()
                                    .value(QStringLiteral("$defs"))
                                    .toObject()
                                    .value(QStringLiteral("subject"))
                                    .toObject();
    QVERIFY(subject.value(QStringLiteral("properties")).toObject().contains(key));
    QCOMPARE(subject.value(QStringLiteral("required")).toArray().contains(key),
             attribute.writing() == SubjectAttribute::Always);
}

void TestSubjectAttribute::shouldBeInTheDescriptionOfTheFormat()
{
    QFETCH(QString, key);
    const QString text = QString::fromUtf8(contentOf("docs/format.md"));
    const QRegularExpression row(QStringLiteral("^\\|[^|]*`%1`[^|]*\\|").arg(key),
                                 QRegularExpression::MultilineOption);
    QVERIFY(row.match(text).hasMatch());
}

void TestSubjectAttribute::shouldBeAColumnOfTheSearch()
{
    QStringList searched;
    for (const SubjectAttribute &attribute : SubjectAttribute::all()) {
        if (attribute.uses().testFlag(SubjectAttribute::Searched))
            searched.append(attribute.key());
    }
    const FishModel model;
    QStringList columns;
    const ReplaceFindDialog dialog;
    const auto *const combo = dialog.findChild<QComboBox *>();
    for (int column = 0; column < combo->count(); ++column) {
        columns.append(combo->itemText(column));
        QCOMPARE(model.headerData(column, Qt::Horizontal).toString(), columns.last());
    }
    QCOMPARE(columns, searched);
}

FISHBONE_TEST(TestSubjectAttribute)

#include "tst_subjectattribute.moc"
