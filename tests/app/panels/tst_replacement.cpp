// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/replacement.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/undo/editattributes.h>

class TestReplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldReplaceWhereverItIsFound_data();
    void shouldReplaceWhereverItIsFound();
    void shouldReplaceTitlesAndNumbersAlone();
    void shouldTellHowFarItIs();
    void shouldEndWhenItIsTold();
    void shouldLeaveOutWhatIsGone();

private:
    const Replacement m_plural{QStringLiteral("Too"), QStringLiteral("Two")};
};

void TestReplacement::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_replacement"));
}

void TestReplacement::shouldReplaceWhereverItIsFound_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<bool>("isStrict");
    QTest::addColumn<QString>("result");
    QTest::newRow("any case") << "a" << false << "xbx";
    QTest::newRow("this case") << "a" << true << "Abx";
    QTest::newRow("nowhere") << "c" << false << "Aba";
    QTest::newRow("nothing") << "" << false << "Aba";
}

void TestReplacement::shouldReplaceWhereverItIsFound()
{
    QFETCH(QString, search);
    QFETCH(bool, isStrict);
    const Replacement replacement{search, QStringLiteral("x"),
                                  isStrict ? Qt::CaseSensitive : Qt::CaseInsensitive};
    QTEST(replacement.of(QStringLiteral("Aba")), "result");
}

void TestReplacement::shouldReplaceTitlesAndNumbersAlone()
{
    const AppFixture app;
    const QModelIndex title = app.find("Too few");
    QList<int> possible;
    for (int column = 0; column < app.window.model()->columnCount({}); ++column) {
        if (Replacement::isPossible(title.siblingAtColumn(column)))
            possible.append(column);
    }
    QCOMPARE(possible, (QList<int>{0, 2}));
}

void TestReplacement::shouldTellHowFarItIs()
{
    const AppFixture app;
    QList<int> heard;
    const auto command =
        m_plural.draft(app.window.model(), {app.find("Too few"), app.find("Too new")},
                       [&heard](int done, int total) {
                           heard += {done, total};
                           return true;
                       });
    QVERIFY(command);
    QCOMPARE(command->count(), 2);
    QCOMPARE(heard, (QList<int>{0, 2, 1, 2}));
    QVERIFY(app.find("Too few").isValid()); // it is a draft
}

void TestReplacement::shouldEndWhenItIsTold()
{
    const AppFixture app;
    const auto command =
        m_plural.draft(app.window.model(), {app.find("Too few"), app.find("Too new")},
                       [](int done, int) { return done < 1; });
    QVERIFY(!command);
}

void TestReplacement::shouldLeaveOutWhatIsGone()
{
    const AppFixture app;
    FishModel *const model = app.window.model();
    const QModelIndex people = app.find("People");
    const auto command = m_plural.draft(model, {app.find("Too few"), app.find("Too new")},
                                        [model, people](int done, int) {
                                            if (done == 1)
                                                model->removeRows(1, 1, people);
                                            return true;
                                        });
    QVERIFY(command);
    QCOMPARE(command->count(), 1);
}

FISHBONE_TEST(TestReplacement)
#include "tst_replacement.moc"
