// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/canvastheme.h>

#include <fishbone/model/systemhelper.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPalette>
#include <QStandardPaths>
#include <QtTest>

using TestSupport::ModalDriver;

namespace {

QString dataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

QPalette palette(bool dark)
{
    return QPalette(dark ? QColor(30, 30, 30) : QColor(230, 230, 230));
}

/** Sets how many characters of a title every bone shows, and answers with @p answer. */
void edit(CanvasTheme &theme, int textCount, void (QDialog::*answer)())
{
    const ModalDriver<SpearStyleDialog> user([=](SpearStyleDialog &dialog) {
        const QList<QLineEdit *> fields = dialog.findChildren<QLineEdit *>();
        for (QLineEdit *field : fields) {
            if (field->objectName() != QLatin1String("PreviewText") && !field->isReadOnly())
                field->setText(QString::number(textCount));
        }
        (dialog.*answer)();
    });
    theme.editStyle(nullptr);
    QVERIFY(user.isDone());
}

} // namespace

/** The styles of all bones, kept for the user, in a light and in a dark palette. */
class TestCanvasTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void shouldKeepTheStyleInTheUsersFolder_data();
    void shouldKeepTheStyleInTheUsersFolder();
    void shouldKeepNothingThatIsRejected();
    void shouldTellWhatCannotBeKept();
    void shouldShowWhatIsBuiltInWhenAFileIsBroken();
};

void TestCanvasTheme::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_canvastheme"));
    cleanup();
}

void TestCanvasTheme::cleanup()
{
    QFile::setPermissions(dataFolder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QDir(dataFolder()).removeRecursively();
}

void TestCanvasTheme::shouldKeepTheStyleInTheUsersFolder_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void TestCanvasTheme::shouldKeepTheStyleInTheUsersFolder()
{
    QFETCH(bool, dark);
    {
        CanvasTheme theme;
        theme.follow(palette(dark));
        QVERIFY(SpearStyle::global()->textCount() != 3);
        edit(theme, 3, &QDialog::accept);
        QCOMPARE(SpearStyle::global()->textCount(), 3);
        theme.follow(palette(!dark)); // which has a style of its own
        QVERIFY(SpearStyle::global()->textCount() != 3);
    }
    QCOMPARE(QDir(dataFolder()).entryList(QDir::Files),
             QStringList(dark ? QStringLiteral("global-dark.spearstyle")
                              : QStringLiteral("global.spearstyle")));
    CanvasTheme again;
    again.follow(palette(dark));
    QCOMPARE(SpearStyle::global()->textCount(), 3);
}

void TestCanvasTheme::shouldKeepNothingThatIsRejected()
{
    CanvasTheme theme;
    const int before = SpearStyle::global()->textCount();
    edit(theme, 3, &QDialog::reject);
    QCOMPARE(SpearStyle::global()->textCount(), before);
    QVERIFY(!QFile::exists(dataFolder()));
}

void TestCanvasTheme::shouldTellWhatCannotBeKept()
{
    QVERIFY(QDir().mkpath(dataFolder() + QStringLiteral("/global.spearstyle"))); // in the way
    CanvasTheme theme;
    const QSignalSpy messages(&theme, &CanvasTheme::message);
    edit(theme, 3, &QDialog::accept);
    QCOMPARE(messages.count(), 1);
    QVERIFY(messages.at(0).at(0).toString().contains(QStringLiteral("global.spearstyle")));
    QCOMPARE(SpearStyle::global()->textCount(), 3); // as long as the program runs
}

void TestCanvasTheme::shouldShowWhatIsBuiltInWhenAFileIsBroken()
{
    CanvasTheme usual;
    const int before = SpearStyle::global()->textCount();
    QVERIFY(QDir().mkpath(dataFolder()));
    QFile file(dataFolder() + QStringLiteral("/global.spearstyle"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("{\"textCount\": ") > 0);
    file.close();
    CanvasTheme theme;
    QCOMPARE(SpearStyle::global()->textCount(), before);
}

FISHBONE_TEST(TestCanvasTheme)
#include "tst_canvastheme.moc"
