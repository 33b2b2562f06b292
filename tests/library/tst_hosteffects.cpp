// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/dialogs/urldialog.h>
#include <fishbone/style/penselect.h>
#include <fishbone/style/spearstyledialog.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QShortcut>
#include <QStyle>
#include <QtTest>

using namespace TestSupport;

/** What the library leaves alone in the program that embeds it. */
class TestHostEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLeaveTheApplicationAsItIs();
    void shouldWriteNoFilesOfItsOwnAccord();
    void shouldKeepShortcutsToItsWidgets();
    void shouldStayHiddenUntilTheHostShowsIt();
};

namespace {

const QString diagram = QStringLiteral("Effect[Man[Training],Machine]");

/** What a program can be told apart by, one a line. */
QString applicationState()
{
    const QStringList lines{
        QCoreApplication::applicationName(),
        QCoreApplication::applicationVersion(),
        QCoreApplication::organizationName(),
        QCoreApplication::organizationDomain(),
        QGuiApplication::applicationDisplayName(),
        QGuiApplication::desktopFileName(),
        QGuiApplication::windowIcon().isNull() ? QStringLiteral("no icon") : QStringLiteral("icon"),
        QString::number(QGuiApplication::quitOnLastWindowClosed()),
        QString::number(QGuiApplication::layoutDirection()),
        QGuiApplication::overrideCursor() ? QStringLiteral("cursor") : QStringLiteral("no cursor"),
        QApplication::style()->objectName(),
        qApp->styleSheet(),
        QApplication::font().toString(),
        QString::number(QGuiApplication::palette().cacheKey()),
        QLocale().name(),
        QDir::currentPath(),
        QCoreApplication::translate("FishModel", "标题"),
    };
    return lines.join(QLatin1Char('\n'));
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator found(folder, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext())
        files.append(found.next());
    files.sort();
    return files;
}

/** Shows a diagram and works on it with everything that needs no answer from a user. */
void edit(EditorFixture &fixture)
{
    fixture.select({QStringLiteral("Man")});
    fixture.editor.insertChildSubject();
    fixture.editor.renameItem(fixture.index(QStringLiteral("Machine")), QStringLiteral("Tools"));
    fixture.editor.expandAll();
    fixture.editor.zoomIn(50);
    fixture.editor.undo();
    fixture.editor.showEntire();
    settle();
}

} // namespace

void TestHostEffects::shouldLeaveTheApplicationAsItIs()
{
    QCoreApplication::setApplicationName(QStringLiteral("A host"));
    qApp->setStyleSheet(QStringLiteral("QSpinBox { color: red }"));
    const QString before = applicationState();

    {
        EditorFixture fixture(diagram);
        QVERIFY(fixture.show());
        edit(fixture);
        SpearStyle style;
        const SpearStyleDialog styleDialog(style);
        const PenSelect penDialog{QPen()};
        const URLDialog urlDialog;
        const ReplaceFindDialog findDialog;
        QCOMPARE(applicationState(), before);
    }

    QCOMPARE(applicationState(), before);
}

void TestHostEffects::shouldWriteNoFilesOfItsOwnAccord()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QStringList before = filesBelow(folder);
    QVERIFY(!before.isEmpty()); // the program itself

    {
        EditorFixture fixture(diagram);
        QVERIFY(fixture.show());
        edit(fixture);
    }

    QCOMPARE(filesBelow(folder), before);
}

void TestHostEffects::shouldKeepShortcutsToItsWidgets()
{
    EditorFixture fixture(diagram);
    QVERIFY(fixture.show());
    edit(fixture);
    SpearStyle style;
    const SpearStyleDialog styleDialog(style);
    const URLDialog urlDialog;
    const ReplaceFindDialog findDialog;

    const QList<const QWidget *> tops{&fixture.editor, &styleDialog, &urlDialog, &findDialog};
    for (const QWidget *top : tops) {
        for (const QAction *action : top->findChildren<QAction *>()) {
            QVERIFY2(action->shortcut().isEmpty() ||
                         action->shortcutContext() <= Qt::WidgetShortcut ||
                         action->shortcutContext() == Qt::WidgetWithChildrenShortcut,
                     qPrintable(action->text()));
        }
        for (const QShortcut *shortcut : top->findChildren<QShortcut *>())
            QVERIFY2(shortcut->context() == Qt::WidgetShortcut ||
                         shortcut->context() == Qt::WidgetWithChildrenShortcut,
                     qPrintable(shortcut->key().toString()));
    }
}

void TestHostEffects::shouldStayHiddenUntilTheHostShowsIt()
{
    EditorFixture fixture(diagram);
    edit(fixture);

    for (const QWidget *window : QApplication::topLevelWidgets())
        QVERIFY2(!window->isVisible(), window->metaObject()->className());
}

FISHBONE_TEST(TestHostEffects)
#include "tst_hosteffects.moc"
