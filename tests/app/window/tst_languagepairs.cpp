// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <app/common/language.h>
#include <app/editing/titleeditor.h>

#include <tests/program/testprogram.h>

#include <fishbone/dialogs/replacefinddialog.h>

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSet>
#include <QSettings>
#include <QSpinBox>

#include <functional>

namespace {

/** Calls @p step for a way through all languages that goes once from each to each other one. */
void walkAllPairs(const std::function<void(const QString &)> &step, QSet<QString> &pairs)
{
    const QStringList all = Language::all();
    const int count = int(all.size());
    const auto pair = [&all](int from, int to) {
        return all.at(from) + QLatin1Char('>') + all.at(to);
    };
    for (int stride = 1; stride < count; ++stride) {
        for (int start = 0; start < count; ++start) {
            if (pairs.contains(pair(start, (start + stride) % count)))
                continue;
            int from = start;
            step(all.at(from));
            do {
                const int to = (from + stride) % count;
                step(all.at(to));
                pairs.insert(pair(from, to));
                from = to;
            } while (from != start);
        }
    }
}

} // namespace

/**
 * What is typed and not yet taken while the language changes from any one to any other. The window
 * shows the menu with the languages only while no modal dialog is open, so that the panels, the
 * find dialog, the filter and the title in the drawing are all that can hold such texts.
 */
class TestLanguagePairs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }
    void cleanup() { Language::install(QStringLiteral("en")); }

    void shouldKeepWhatIsTypedBetweenAnyTwoLanguages();
    void shouldKeepATitleThatIsEditedBetweenAnyTwoLanguages();
    void shouldOfferNoOtherLanguageBesideAModalDialog();
};

void TestLanguagePairs::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_languagepairs"));
}

void TestLanguagePairs::shouldKeepWhatIsTypedBetweenAnyTwoLanguages()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("details");
    auto *const title = app.widget<QLineEdit>("detailsTitle");
    title->setText(QStringLiteral("Engines"));
    auto *const text = app.widget<QPlainTextEdit>("detailsText");
    QTest::keyClicks(text, QStringLiteral("More"));
    auto *const progress = app.widget<QSpinBox>("detailsProgress");
    progress->setValue(40);
    app.trigger("filter");
    auto *const filter = app.widget<QLineEdit>("filterText");
    filter->setText(QStringLiteral("ru"));
    app.trigger("find");
    auto *const dialog = app.window.findChild<ReplaceFindDialog *>();
    dialog->searchField()->setText(QStringLiteral("zz"));
    dialog->replacementField()->setText(QStringLiteral("Two"));
    const QString before = app.text();
    QStringList lost;
    QSet<QString> pairs;
    QElapsedTimer timer;
    timer.start();
    walkAllPairs(
        [&](const QString &language) {
            Language::install(language);
            QCoreApplication::sendPostedEvents();
            const QStringList typed{
                title->text(),  text->toPlainText(),           QString::number(progress->value()),
                filter->text(), dialog->searchField()->text(), dialog->replacementField()->text(),
                app.text()};
            const QStringList expected{QStringLiteral("Engines"),
                                       QStringLiteral("More"),
                                       QStringLiteral("40"),
                                       QStringLiteral("ru"),
                                       QStringLiteral("zz"),
                                       QStringLiteral("Two"),
                                       before};
            if (typed != expected)
                lost.append(language + QLatin1Char(' ') + typed.join(QLatin1Char('|')));
        },
        pairs);
    qInfo("%d pairs in %lld ms", int(pairs.size()), timer.elapsed());
    QCOMPARE(lost.join(QLatin1Char('\n')), QString());
    QCOMPARE(int(pairs.size()), int(Language::all().size() * (Language::all().size() - 1)));
    QVERIFY(!app.document()->modified());
}

void TestLanguagePairs::shouldKeepATitleThatIsEditedBetweenAnyTwoLanguages()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("rename");
    auto *const title = app.window.editor()->findChild<TitleEditor *>(QStringLiteral("title"));
    QVERIFY(title);
    QTest::keyClicks(title, QStringLiteral("Engines"));
    QStringList lost;
    QSet<QString> pairs;
    walkAllPairs(
        [&](const QString &language) {
            Language::install(language);
            QCoreApplication::sendPostedEvents();
            if (!title->isVisible() || app.find("Engines").isValid())
                lost.append(language);
        },
        pairs);
    QCOMPARE(lost.join(QLatin1Char(' ')), QString());
    QTest::keyClick(title, Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(app.find("Engines").isValid());
}

/** Modal dialogs are made anew for each use, in the language of the moment: nothing reaches the
 * menu while one is open. */
void TestLanguagePairs::shouldOfferNoOtherLanguageBesideAModalDialog()
{
    AppFixture app;
    QDialog dialog(&app.window);
    dialog.setModal(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(!Language::installed().startsWith(QLatin1String("de")));
    QSignalSpy changes(app.action("language-de"), &QAction::triggered);
    QTest::keyClick(&app.window, Qt::Key_V, Qt::AltModifier);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(QApplication::activeModalWidget(), &dialog);
    QCOMPARE(changes.count(), 0);
}

FISHBONE_TEST(TestLanguagePairs)
#include "tst_languagepairs.moc"
