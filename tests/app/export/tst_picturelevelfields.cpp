// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/expansion.h>
#include <app/export/picturelevelfields.h>
#include <tests/program/testprogram.h>

#include <QComboBox>
#include <QFormLayout>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
#include <QtTest>

/** The fields for how far the bones of a picture are expanded. */
class TestPictureLevelFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldBeginWithWhatIsShown();
    void shouldTellWhatIsChosen();
    void shouldOfferTheLevelsThatThereAre();
    void shouldRememberWhatWasChosen();
};

namespace {

/** The fields in a window of their own. */
struct Fields
{
    explicit Fields(int depth = 5)
        : fields(new QFormLayout(&window), depth, &window)
        , expansion(window.findChild<QComboBox *>(QStringLiteral("expansion")))
        , levels(window.findChild<QSpinBox *>(QStringLiteral("levels")))
    {
    }

    QWidget window;
    PictureLevelFields fields;
    QComboBox *expansion;
    QSpinBox *levels;
};

} // namespace

void TestPictureLevelFields::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Fishbone"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_picturelevelfields"));
}

void TestPictureLevelFields::init()
{
    QSettings().clear();
}

void TestPictureLevelFields::shouldBeginWithWhatIsShown()
{
    const Fields shown;
    QCOMPARE(shown.fields.levels(), std::nullopt);
    QVERIFY(!shown.levels->isEnabled());
}

void TestPictureLevelFields::shouldTellWhatIsChosen()
{
    Fields shown;
    const QSignalSpy changed(&shown.fields, &PictureLevelFields::changed);
    shown.expansion->setCurrentIndex(1);
    QCOMPARE(shown.fields.levels(), std::make_optional(int(Expansion::allLevels)));
    QVERIFY(!shown.levels->isEnabled());
    QCOMPARE(changed.count(), 1);
    shown.expansion->setCurrentIndex(2);
    QVERIFY(shown.levels->isEnabled());
    shown.levels->setValue(3);
    QCOMPARE(shown.fields.levels(), std::make_optional(3));
    QCOMPARE(changed.count(), 3);
}

void TestPictureLevelFields::shouldOfferTheLevelsThatThereAre()
{
    const Fields shown(2);
    shown.levels->setValue(7);
    QCOMPARE(shown.levels->value(), 2);
    shown.levels->setValue(-1);
    QCOMPARE(shown.levels->value(), 0);
}

void TestPictureLevelFields::shouldRememberWhatWasChosen()
{
    {
        Fields shown;
        shown.expansion->setCurrentIndex(2);
        shown.levels->setValue(4);
        shown.fields.remember();
    }
    const Fields next;
    QCOMPARE(next.fields.levels(), std::make_optional(4));
    QVERIFY(next.levels->isEnabled());
}

FISHBONE_TEST(TestPictureLevelFields)
#include "tst_picturelevelfields.moc"
