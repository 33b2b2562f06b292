// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/marknames.h>

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>
#include <fishbone/undo/editattributes.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

using TestSupport::ModalDriver;

namespace {

qint64 dateOf(int day)
{
    return QDateTime(QDate(2026, 5, day), QTime(13, 30)).toMSecsSinceEpoch();
}

} // namespace

/** The details of several subjects at once: "People" and "Machines", which are alike in some. */
class TestDetailsPanelSeveral : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_app.reset(); }
    void shouldShowWhatIsTheSameAndWhatIsNot();
    void shouldChangeAllOfThemInOneStep();
    void shouldLeaveAloneWhatIsNotTouched();
    void shouldTakeWhatTheFirstOneHasAlready();
    void shouldTakeADateForAll();
    void shouldEmptyAMixedField();
    void shouldChangeVerdictsAndVotes();
    void shouldRevert();
    void shouldApplyWhenOthersAreSelected();
    void shouldGiveAllTheStyle();
    void shouldGiveAllTheStatus();
    void shouldKeepTheEvidenceWithTheVerdict();

private:
    template <typename Field>
    Field &field(const char *name) const
    {
        return *m_app->widget<Field>(name);
    }
    void apply() const
    {
        QVERIFY(field<QPushButton>("detailsApply").isEnabled());
        QTest::mouseClick(&field<QPushButton>("detailsApply"), Qt::LeftButton);
        AppFixture::settle();
    }
    TreeItem &people() const { return *m_app->subject("People"); }
    TreeItem &machines() const { return *m_app->subject("Machines"); }

    std::unique_ptr<AppFixture> m_app;
};

void TestDetailsPanelSeveral::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_detailspanel_several"));
}

void TestDetailsPanelSeveral::init()
{
    QSettings().clear();
    m_app = std::make_unique<AppFixture>();
    people().setStatus(tsRunning);
    machines().setStatus(tsFinish);
    people().setPriority(2);
    machines().setPriority(2);
    people().setProgress(10);
    machines().setProgress(90);
    people().setManagerName(QStringLiteral("Ada"));
    machines().setManagerName(QStringLiteral("Bo"));
    people().setPlanEndDate(dateOf(1));
    SubjectMarks::setVerdict(people(), Verdict::Confirmed);
    SubjectMarks::setVotes(machines(), 3);
    people().setDetail(QStringLiteral("the same"));
    machines().setDetail(QStringLiteral("the same"));
    machines().setUrl(QStringLiteral("https://example.org"));
    m_app->window.session()->select({m_app->find("People"), m_app->find("Machines")});
    AppFixture::settle();
    QCOMPARE(m_app->selectedInDrawing().size(), 2);
}

void TestDetailsPanelSeveral::shouldShowWhatIsTheSameAndWhatIsNot()
{
    QVERIFY(!field<QLineEdit>("detailsTitle").isEnabled());
    QCOMPARE(field<QLineEdit>("detailsTitle").placeholderText(), QStringLiteral("2 subjects"));
    QCOMPARE(field<QLineEdit>("detailsTitle").text(), QString());
    QCOMPARE(field<QPlainTextEdit>("detailsText").toPlainText(), QStringLiteral("the same"));
    QCOMPARE(field<QSpinBox>("detailsPriority").value(), 2);
    QCOMPARE(field<QComboBox>("detailsStatus").currentIndex(), -1);
    QCOMPARE(field<QComboBox>("detailsStatus").placeholderText(), QStringLiteral("several"));
    QCOMPARE(field<QSpinBox>("detailsProgress").text(), QStringLiteral("several"));
    QCOMPARE(field<QSpinBox>("detailsVotes").text(), QStringLiteral("several"));
    QCOMPARE(field<QComboBox>("detailsVerdict").currentIndex(), -1);
    QCOMPARE(field<QLineEdit>("detailsManager").text(), QString());
    QCOMPARE(field<QLineEdit>("detailsManager").placeholderText(), QStringLiteral("several"));
    QCOMPARE(field<QLineEdit>("detailsLink").placeholderText(), QStringLiteral("several"));
    QCOMPARE(field<QCheckBox>("detailsHasPlannedEnd").checkState(), Qt::PartiallyChecked);
    QVERIFY(!field<QPushButton>("detailsApply").isEnabled());
    m_app->trigger("details"); // which shows the panel, and keeps that
    QCOMPARE(field<QLineEdit>("detailsTitle").placeholderText(), QStringLiteral("2 subjects"));
    QVERIFY(
        field<QComboBox>("detailsVerdict").hasFocus()); // the first that they may have in common
    // One alone has nothing of that.
    m_app->select("Machines");
    QVERIFY(field<QLineEdit>("detailsTitle").isEnabled());
    QCOMPARE(field<QLineEdit>("detailsTitle").placeholderText(), QString());
    QCOMPARE(field<QLineEdit>("detailsManager").text(), QStringLiteral("Bo"));
    QCOMPARE(field<QCheckBox>("detailsHasPlannedEnd").checkState(), Qt::Unchecked);
    QVERIFY(!field<QCheckBox>("detailsHasPlannedEnd").isTristate());
}

void TestDetailsPanelSeveral::shouldChangeAllOfThemInOneStep()
{
    auto &manager = field<QLineEdit>("detailsManager");
    manager.setFocus();
    QTest::keyClicks(&manager, QStringLiteral("Cy"));
    field<QSpinBox>("detailsPriority").setValue(1);
    QTest::keyClick(&manager, Qt::Key_Return);
    AppFixture::settle();
    for (const TreeItem *subject : {&people(), &machines()}) {
        QCOMPARE(subject->managerName(), QStringLiteral("Cy"));
        QCOMPARE(subject->priority(), 1);
    }
    QCOMPARE(manager.text(), QStringLiteral("Cy"));
    QCOMPARE(m_app->selectedInDrawing().size(), 2);
    m_app->trigger("undo");
    QCOMPARE(people().managerName(), QStringLiteral("Ada"));
    QCOMPARE(machines().managerName(), QStringLiteral("Bo"));
    QCOMPARE(people().priority(), 2);
    QVERIFY(!m_app->window.editor()->canUndo());
}

void TestDetailsPanelSeveral::shouldLeaveAloneWhatIsNotTouched()
{
    field<QPlainTextEdit>("detailsText").setPlainText(QStringLiteral("for both"));
    apply();
    QCOMPARE(people().detail(), QStringLiteral("for both"));
    QCOMPARE(machines().detail(), QStringLiteral("for both"));
    QCOMPARE(people().title(), QStringLiteral("People"));
    QCOMPARE(machines().title(), QStringLiteral("Machines"));
    QCOMPARE(people().status(), int(tsRunning));
    QCOMPARE(machines().status(), int(tsFinish));
    QCOMPARE(people().progress(), 10);
    QCOMPARE(machines().progress(), 90);
    QCOMPARE(SubjectMarks::verdict(people()), Verdict::Confirmed);
    QCOMPARE(SubjectMarks::verdict(machines()), Verdict::None);
    QCOMPARE(SubjectMarks::votes(people()), 0);
    QCOMPARE(SubjectMarks::votes(machines()), 3);
    QCOMPARE(people().planEndDate(), dateOf(1));
    QCOMPARE(machines().planEndDate(), qint64(0));
    QCOMPARE(machines().url(), QStringLiteral("https://example.org"));
    QCOMPARE(people().url(), QString());
}

void TestDetailsPanelSeveral::shouldTakeWhatTheFirstOneHasAlready()
{
    auto &status = field<QComboBox>("detailsStatus");
    status.setCurrentIndex(status.findData(int(tsRunning)));
    field<QSpinBox>("detailsProgress").setValue(10);
    apply();
    QCOMPARE(machines().status(), int(tsRunning));
    QCOMPARE(machines().progress(), 10);
    QCOMPARE(status.currentData().toInt(), int(tsRunning));
}

void TestDetailsPanelSeveral::shouldTakeADateForAll()
{
    auto &box = field<QCheckBox>("detailsHasPlannedEnd");
    QVERIFY(!field<QDateEdit>("detailsPlannedEnd").isEnabled());
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    QCOMPARE(box.checkState(), Qt::Checked);
    field<QDateEdit>("detailsPlannedEnd").setDate(QDate(2026, 6, 7));
    apply();
    const qint64 midnight = QDateTime(QDate(2026, 6, 7), QTime(0, 0)).toMSecsSinceEpoch();
    QCOMPARE(people().planEndDate(), midnight);
    QCOMPARE(machines().planEndDate(), midnight);
}

void TestDetailsPanelSeveral::shouldEmptyAMixedField()
{
    auto &link = field<QLineEdit>("detailsLink");
    link.setFocus();
    QTest::keyClicks(&link, QStringLiteral("x"));
    QTest::keyClick(&link, Qt::Key_Backspace);
    apply();
    QCOMPARE(machines().url(), QString());
}

void TestDetailsPanelSeveral::shouldChangeVerdictsAndVotes()
{
    auto &verdict = field<QComboBox>("detailsVerdict");
    verdict.setCurrentIndex(verdict.findText(QStringLiteral("root cause")));
    field<QSpinBox>("detailsVotes").setValue(0); // as the first one has
    apply();
    for (const TreeItem *subject : {&people(), &machines()}) {
        QCOMPARE(SubjectMarks::verdict(*subject), Verdict::RootCause);
        QCOMPARE(SubjectMarks::votes(*subject), 0);
        QVERIFY(!subject->otherFields().contains(QStringLiteral("votes")));
    }
    m_app->select("Machines");
    QCOMPARE(verdict.currentText(), QStringLiteral("root cause"));
    verdict.setCurrentIndex(0);
    apply();
    QCOMPARE(SubjectMarks::verdict(machines()), Verdict::None);
    QVERIFY(machines().otherFields().isEmpty());
}

void TestDetailsPanelSeveral::shouldRevert()
{
    field<QLineEdit>("detailsManager").setText(QStringLiteral("Cy"));
    QTest::mouseClick(&field<QPushButton>("detailsRevert"), Qt::LeftButton);
    QCOMPARE(field<QLineEdit>("detailsManager").text(), QString());
    QVERIFY(!field<QPushButton>("detailsApply").isEnabled());
    m_app->select("Material");
    QCOMPARE(people().managerName(), QStringLiteral("Ada"));
    QVERIFY(!m_app->window.editor()->canUndo());
}

void TestDetailsPanelSeveral::shouldApplyWhenOthersAreSelected()
{
    field<QLineEdit>("detailsManager").setText(QStringLiteral("Cy"));
    m_app->select("Material");
    QCOMPARE(people().managerName(), QStringLiteral("Cy"));
    QCOMPARE(machines().managerName(), QStringLiteral("Cy"));
    QCOMPARE(m_app->subject("Material")->managerName(), QString());
}

void TestDetailsPanelSeveral::shouldGiveAllTheStyle()
{
    const ModalDriver<SpearStyleDialog> driver([](SpearStyleDialog &dialog) { dialog.accept(); });
    m_app->trigger("style");
    QVERIFY(driver.isDone());
    QVERIFY(people().spearStyle() && machines().spearStyle());
    QCOMPARE(EditAttributes::stateOf(machines()).value(QStringLiteral("spearstyle")),
             EditAttributes::stateOf(people()).value(QStringLiteral("spearstyle")));
    m_app->trigger("removeStyle");
    QVERIFY(!people().spearStyle() && !machines().spearStyle());
    m_app->trigger("undo");
    QVERIFY(people().spearStyle() && machines().spearStyle());
    m_app->trigger("undo");
    QVERIFY(!people().spearStyle() && !machines().spearStyle());
    QVERIFY(!m_app->window.editor()->canUndo());
}

void TestDetailsPanelSeveral::shouldGiveAllTheStatus()
{
    auto &status = field<QComboBox>("detailsStatus");
    status.setFocus();
    while (status.currentText() != MarkNames::of(int(tsPostpone))) {
        const int before = status.currentIndex();
        QTest::keyClick(&status, Qt::Key_Down);
        QVERIFY(status.currentIndex() != before);
    }
    apply();
    QCOMPARE(people().status(), int(tsPostpone));
    QCOMPARE(machines().status(), int(tsPostpone));
    m_app->trigger("undo");
    QCOMPARE(people().status(), int(tsRunning));
    QCOMPARE(machines().status(), int(tsFinish));
    QVERIFY(!m_app->window.editor()->canUndo());
}

/** In one step, and the report shows both side by side. */
void TestDetailsPanelSeveral::shouldKeepTheEvidenceWithTheVerdict()
{
    m_app->select("Machines");
    auto &verdict = field<QComboBox>("detailsVerdict");
    verdict.setFocus();
    QTest::keyClick(&verdict, Qt::Key_End);
    QCOMPARE(verdict.currentText(), MarkNames::of(Verdict::RootCause));
    auto &text = field<QPlainTextEdit>("detailsText");
    text.setFocus();
    text.selectAll();
    QTest::keyClicks(&text, QStringLiteral("Bearing seized"));
    apply();
    QCOMPARE(SubjectMarks::verdict(machines()), Verdict::RootCause);
    QCOMPARE(machines().detail(), QStringLiteral("Bearing seized"));
    QCOMPARE(m_app->window.editor()->undoStack()->count(), 1);
    const ModalDriver<QFileDialog> driver(
        DialogAnswers::enter(m_app->path(QStringLiteral("report.md"))));
    m_app->trigger("report");
    QVERIFY(driver.isDone());
    const QByteArray report = AppFixture::contentOf(m_app->path(QStringLiteral("report.md")));
    bool isTold = false;
    for (const QByteArray &line : report.split('\n'))
        isTold = isTold || (line.contains("Machines") && line.contains("Bearing seized") &&
                            line.contains("root cause"));
    QVERIFY2(isTold, report.constData());
}

FISHBONE_TEST(TestDetailsPanelSeveral)
#include "tst_detailspanel_several.moc"
