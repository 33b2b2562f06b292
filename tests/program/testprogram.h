// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QtTest>

namespace TestSupport {

/**
 * The test classes of a folder share one program, which has a name for each of them: the one it is
 * started under says which class it runs. Each such name stands in a folder of its own, since the
 * library reads and writes files beside the program.
 */
class TestProgram
{
public:
    using Main = int (*)(int argc, char *argv[]);

    /** Registers what runs under the name of @p sourceFile, without its folder and ending. */
    TestProgram(const char *sourceFile, Main main);
};

/**
 * Keeps hold of the screen of the platform without one, which never deletes it: of what nobody
 * holds the leak checker asks for names, which takes longer than most tests.
 */
void holdScreen();

} // namespace TestSupport

/** Registers a function for the tests of this source that takes the place of main(). */
#define FISHBONE_TEST_MAIN(function)                                                               \
    static const TestSupport::TestProgram function##Program(__FILE__, function);

/** Runs the slots of a class in an application that has windows. */
#define FISHBONE_TEST(TestObject)                                                                  \
    static int run##TestObject(int argc, char *argv[])                                             \
    {                                                                                              \
        const QApplication application(argc, argv);                                                \
        QApplication::setAttribute(Qt::AA_Use96Dpi);                                               \
        TestSupport::holdScreen();                                                                 \
        TestObject test;                                                                           \
        return QTest::qExec(&test, argc, argv);                                                    \
    }                                                                                              \
    FISHBONE_TEST_MAIN(run##TestObject)

/** Runs the slots of a class in an application that has no windows. */
#define FISHBONE_GUILESS_TEST(TestObject)                                                          \
    static int run##TestObject(int argc, char *argv[])                                             \
    {                                                                                              \
        const QCoreApplication application(argc, argv);                                            \
        TestObject test;                                                                           \
        return QTest::qExec(&test, argc, argv);                                                    \
    }                                                                                              \
    FISHBONE_TEST_MAIN(run##TestObject)

/** Runs the slots of a class without any application. */
#define FISHBONE_APPLESS_TEST(TestObject)                                                          \
    static int run##TestObject(int argc, char *argv[])                                             \
    {                                                                                              \
        TestObject test;                                                                           \
        return QTest::qExec(&test, argc, argv);                                                    \
    }                                                                                              \
    FISHBONE_TEST_MAIN(run##TestObject)
