// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/filterbar.h>

#include <app/common/language.h>
#include <app/diagram/drawingfilter.h>
#include <app/export/picturesource.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectmarks.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSpinBox>

namespace {

/** The window with all bones expanded and the bar open. */
class FilterFixture : public AppFixture
{
public:
    FilterFixture()
    {
        trigger("expandall");
        before = contentOf(path());
        QTest::keyClick(window.editor()->view(), Qt::Key_L,
                        Qt::ControlModifier | Qt::ShiftModifier);
        settle();
    }

    FilterBar *bar() const { return widget<FilterBar>("filterBar"); }
    QString count() const { return widget<QLabel>("filterCount")->text(); }

    /** Types into whatever has the focus. */
    static void type(const char *text)
    {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
        settle();
    }
    static void press(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key);
        settle();
    }

    /** Goes from the text to the field @p name by Tab, and chooses in it by @p key. */
    void chooseIn(const char *name, Qt::Key key, int times)
    {
        auto *const field = widget<QWidget>(name);
        widget<QLineEdit>("filterText")->setFocus();
        for (int i = 0; i < 10 && QApplication::focusWidget() != field; ++i)
            press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), field);
        for (int i = 0; i < times; ++i)
            press(key);
    }

    double opacity(const char *title) const { return subject(title)->spear()->opacity(); }

    /** The titles of the bones in full colour, those on the way in brackets. */
    QString shown() const
    {
        QStringList titles;
        for (const char *title :
             {"People", "Too few", "Illness", "Too new", "Machines", "Material", "Rust"}) {
            if (opacity(title) == 1)
                titles.append(QLatin1String(title));
            else if (opacity(title) == DrawingFilter::wayOpacity)
                titles.append(QStringLiteral("(%1)").arg(QLatin1String(title)));
        }
        return titles.join(QLatin1Char(','));
    }

    /** The titles of the rows in the tree, in their order. */
    QString inTree() const
    {
        QStringList titles;
        const QTreeView &view = *window.tree()->view();
        for (QModelIndex row = view.model()->index(0, 0); row.isValid(); row = view.indexBelow(row))
            titles.append(row.data().toString());
        return titles.join(QLatin1Char(','));
    }

    QByteArray before; ///< the document's file
};

QImage picture(const FishEditor &editor, DiagramLook::Kind look)
{
    PictureSource source(&editor);
    PictureWish wish;
    wish.levels = -1;
    wish.view.look = look;
    source.setWish(wish);
    QImage image(600, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    source.paint(painter, image.rect());
    return image;
}

} // namespace

/** The bar above the drawing, with which a user looks for what matters now. */
class TestFilterBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase();
    void shouldDimTheOthersAsOneTypes_data();
    void shouldDimTheOthersAsOneTypes();
    void shouldFilterTheTreeToo();
    void shouldFilterByWhatSubjectsAreMarkedWith();
    void shouldOfferThosePeopleThatThereAre();
    void shouldKeepWhoIsChosenInAnotherLanguage();
    void shouldFollowEdits();
    void shouldSurviveANewDrawing();
    void shouldFoldTheOthersAway();
    void shouldEndWithEscape();
    void shouldChangeNeitherDocumentNorHistory();
    void shouldLeavePicturesAlone();
    void shouldGoForEachDocumentAlone();
    void shouldNameEveryControl();
    void shouldTellAssistiveTechnologyWhatIsDimmed();
};

void TestFilterBar::shouldDimTheOthersAsOneTypes_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("clear") << int(DiagramLook::Clear);
    QTest::newRow("classic") << int(DiagramLook::Classic);
}

void TestFilterBar::shouldDimTheOthersAsOneTypes()
{
    QFETCH(int, look);
    FilterFixture app;
    app.window.editor()->setLook(DiagramLook::Kind(look));
    const QImage all = app.window.editor()->view()->viewport()->grab().toImage();
    QVERIFY(app.bar()->isVisible());
    QCOMPARE(QApplication::focusWidget(), app.widget<QLineEdit>("filterText"));
    FilterFixture::type("t");
    QCOMPARE(app.shown(), QStringLiteral("(People),Too few,Too new,Material,Rust"));
    FilterFixture::type("oo f");
    QCOMPARE(app.shown(), QStringLiteral("(People),Too few"));
    QCOMPARE(app.count(), QStringLiteral("1 found"));
    QCOMPARE(app.opacity("Machines"), DrawingFilter::otherOpacity);
    QCOMPARE(app.opacity("Late"), 1.0); // the head, on whose line all others stand
    QVERIFY(app.window.editor()->view()->viewport()->grab().toImage() != all);
    if (const QByteArray folder = qgetenv("FISHBONE_TEST_PICTURES"); !folder.isEmpty())
        app.window.grab().save(
            QStringLiteral("%1/filter-%2.png").arg(QString::fromLocal8Bit(folder)).arg(look));
}

void TestFilterBar::shouldFilterTheTreeToo()
{
    FilterFixture app;
    FilterFixture::type("illness");
    QCOMPARE(app.inTree(), QStringLiteral("Late,People,Too few,Illness"));
    app.widget<QLineEdit>("filter")->setText(QStringLiteral("rust"));
    QCOMPARE(app.inTree(), QStringLiteral("Late")); // what both let through
    app.widget<QLineEdit>("filter")->clear();
    QCOMPARE(app.inTree(), QStringLiteral("Late,People,Too few,Illness"));
    FilterFixture::press(Qt::Key_Escape);
    QCOMPARE(app.inTree(),
             QStringLiteral("Late,People,Too few,Illness,Too new,Machines,Material,Rust"));
}

void TestFilterBar::shouldFilterByWhatSubjectsAreMarkedWith()
{
    FilterFixture app;
    SubjectMarks::setVerdict(*app.subject("Rust"), Verdict::RootCause);
    SubjectMarks::setVotes(*app.subject("Machines"), 3);
    app.subject("Illness")->setStatus(tsWaitting);
    app.subject("Too new")->setPlanEndDate(
        QDateTime::currentDateTime().addDays(-2).toMSecsSinceEpoch());
    app.chooseIn("filterVerdict", Qt::Key_Down, 6); // the last of the verdicts
    QCOMPARE(app.shown(), QStringLiteral("(Material),Rust"));
    QCOMPARE(app.inTree(), QStringLiteral("Late,Material,Rust"));
    app.chooseIn("filterVerdict", Qt::Key_Up, 6);
    QCOMPARE(app.opacity("People"), 1.0);
    app.chooseIn("filterVotes", Qt::Key_Up, 3);
    QCOMPARE(app.shown(), QStringLiteral("Machines"));
    QCOMPARE(app.inTree(), QStringLiteral("Late,Machines"));
    app.chooseIn("filterVotes", Qt::Key_Down, 3);
    app.chooseIn("filterOverdue", Qt::Key_Space, 1);
    QCOMPARE(app.shown(), QStringLiteral("(People),Too new"));
    QCOMPARE(app.inTree(), QStringLiteral("Late,People,Too new"));
    app.chooseIn("filterOverdue", Qt::Key_Space, 1);
    app.chooseIn("filterStatus", Qt::Key_Down, 8); // waiting
    QCOMPARE(app.widget<QComboBox>("filterStatus")->currentText(), QStringLiteral("waiting"));
    QCOMPARE(app.shown(), QStringLiteral("(People),(Too few),Illness"));
}

void TestFilterBar::shouldOfferThosePeopleThatThereAre()
{
    FilterFixture app;
    app.subject("Rust")->setManagerName(QStringLiteral("Ann"));
    app.window.session()->touch();
    AppFixture::settle();
    app.chooseIn("filterPerson", Qt::Key_Down, 2);
    QCOMPARE(app.widget<QComboBox>("filterPerson")->currentText(), QStringLiteral("Ann"));
    QCOMPARE(app.shown(), QStringLiteral("(Material),Rust"));
    app.chooseIn("filterPerson", Qt::Key_Up, 1); // nobody
    QCOMPARE(app.shown(), QStringLiteral("People,Too few,Illness,Too new,Machines,Material"));
    app.chooseIn("filterPerson", Qt::Key_Down, 1);
    app.subject("Rust")->setManagerName(QString()); // she is not named any more
    app.window.session()->touch();
    AppFixture::settle();
    QCOMPARE(app.widget<QComboBox>("filterPerson")->currentText(), QStringLiteral("Anybody"));
    QCOMPARE(app.opacity("People"), 1.0);
}

void TestFilterBar::shouldKeepWhoIsChosenInAnotherLanguage()
{
    FilterFixture app;
    app.subject("Rust")->setManagerName(QStringLiteral("Ann"));
    app.window.session()->touch();
    AppFixture::settle();
    app.chooseIn("filterPerson", Qt::Key_Down, 2);
    QCOMPARE(app.shown(), QStringLiteral("(Material),Rust"));
    Language::install(QStringLiteral("zh"));
    AppFixture::settle();
    const auto *const box = app.widget<QComboBox>("filterPerson");
    QCOMPARE(box->currentText(), QStringLiteral("Ann"));
    QCOMPARE(box->itemText(0), QStringLiteral("任何人"));
    QCOMPARE(app.shown(), QStringLiteral("(Material),Rust"));
    Language::install(QString());
    QCOMPARE(box->itemText(0), QStringLiteral("Anybody"));
}

void TestFilterBar::shouldFollowEdits()
{
    FilterFixture app;
    FilterFixture::type("pump");
    QCOMPARE(app.shown(), QString());
    QCOMPARE(app.count(), QStringLiteral("0 found"));
    app.select("Machines");
    app.window.editor()->view()->setFocus();
    FilterFixture::press(Qt::Key_Tab); // a child
    FilterFixture::type("Pump worn");
    FilterFixture::press(Qt::Key_Return);
    QCOMPARE(app.count(), QStringLiteral("1 found"));
    QCOMPARE(app.shown(), QStringLiteral("(Machines)"));
    QCOMPARE(app.opacity("Pump worn"), 1.0);
    app.trigger("undo");
    QCOMPARE(app.count(), QStringLiteral("0 found"));
    QCOMPARE(app.shown(), QString());
}

void TestFilterBar::shouldSurviveANewDrawing()
{
    FilterFixture app;
    FilterFixture::type("rust");
    app.trigger("contractall");
    app.trigger("expandall");
    QCOMPARE(app.shown(), QStringLiteral("(Material),Rust"));
    app.window.editor()->updateFish(true);
    app.trigger("expandall");
    QCOMPARE(app.shown(), QStringLiteral("(Material),Rust"));
}

void TestFilterBar::shouldFoldTheOthersAway()
{
    FilterFixture app;
    app.trigger("contractall");
    app.select("Rust");
    QVERIFY(app.subject("Material")->spear()->isExpand());
    app.chooseIn("filterFold", Qt::Key_Space, 1);
    app.widget<QLineEdit>("filterText")->setFocus();
    FilterFixture::type("illness");
    QVERIFY(app.subject("Illness")->spear()->isVisible());
    QVERIFY(!app.subject("Material")->spear()->isExpand());
    FilterFixture::press(Qt::Key_Escape);
    QVERIFY(!app.subject("Illness")->spear()->isVisible()); // as it was before
    QVERIFY(app.subject("Material")->spear()->isExpand());
    QVERIFY(!app.document()->modified());
}

void TestFilterBar::shouldEndWithEscape()
{
    FilterFixture app;
    FilterFixture::type("rust");
    FilterFixture::press(Qt::Key_Escape);
    QVERIFY(!app.bar()->isVisible());
    QCOMPARE(app.shown(), QStringLiteral("People,Too few,Illness,Too new,Machines,Material,Rust"));
    QVERIFY(app.window.editor()->view()->hasFocus());
    // As if there never had been a filter.
    QVERIFY(
        !app.subject("Rust")->spear()->flags().testFlag(QGraphicsItem::ItemIgnoresParentOpacity));
    app.trigger("filter");
    QCOMPARE(app.widget<QLineEdit>("filterText")->text(), QString());
}

void TestFilterBar::shouldChangeNeitherDocumentNorHistory()
{
    FilterFixture app;
    FilterFixture::type("rust");
    app.chooseIn("filterFold", Qt::Key_Space, 1);
    QVERIFY(!app.document()->modified());
    QCOMPARE(app.window.editor()->undoStack()->count(), 0);
    FilterFixture::press(Qt::Key_Escape);
    QVERIFY(!app.document()->modified());
    QCOMPARE(app.window.editor()->undoStack()->count(), 0);
    QCOMPARE(AppFixture::contentOf(app.path()), app.before);
}

void TestFilterBar::shouldLeavePicturesAlone()
{
    FilterFixture app;
    const FishEditor &editor = *app.window.editor();
    const QImage clear = picture(editor, DiagramLook::Clear);
    const QImage classic = picture(editor, DiagramLook::Classic);
    FilterFixture::type("rust");
    QCOMPARE(app.shown(), QStringLiteral("(Material),Rust"));
    QCOMPARE(picture(editor, DiagramLook::Clear), clear);
    QCOMPARE(picture(editor, DiagramLook::Classic), classic);
}

void TestFilterBar::shouldGoForEachDocumentAlone()
{
    FilterFixture app;
    FilterFixture::type("rust");
    app.trigger("new");
    QVERIFY(!app.bar()->isVisible());
    app.showTab(0);
    QVERIFY(app.bar()->isVisible());
    QCOMPARE(app.shown(), QStringLiteral("(Material),Rust"));
    app.trigger("close");
}

void TestFilterBar::shouldNameEveryControl()
{
    FilterFixture app;
    QCOMPARE(TestSupport::namelessControls(*app.bar()), QStringList());
}

void TestFilterBar::shouldTellAssistiveTechnologyWhatIsDimmed()
{
    FilterFixture f;
    QAccessibleInterface *const diagram =
        QAccessible::queryAccessibleInterface(f.window.editor()->view());
    const auto told = [&](std::initializer_list<int> path) {
        const QAccessibleInterface *bone = diagram->child(0);
        for (int row : path)
            bone = bone->child(row);
        return bone->text(QAccessible::Name) + QLatin1String(": ") +
               bone->text(QAccessible::Description);
    };
    FilterFixture::type("ill");
    QCOMPARE(told({}), QStringLiteral("Late: level 0"));
    QCOMPARE(told({0}), QStringLiteral("People: level 1, leads to what the filter shows"));
    QCOMPARE(told({0, 0, 0}), QStringLiteral("Illness: level 3"));
    QCOMPARE(told({1}), QStringLiteral("Machines: level 1, left out by the filter"));
    QCOMPARE(told({2, 0}), QStringLiteral("Rust: level 2, left out by the filter"));
    FilterFixture::press(Qt::Key_Escape);
    QCOMPARE(told({1}), QStringLiteral("Machines: level 1"));
    QCOMPARE(told({0}), QStringLiteral("People: level 1"));
}

/** The toolkit loses the fading of a field's clear button that the program does not outlive. */
void TestFilterBar::cleanupTestCase()
{
    constexpr int fading = 160;
    QTest::qWait(2 * fading);
}

FISHBONE_TEST(TestFilterBar)
#include "tst_filterbar.moc"
