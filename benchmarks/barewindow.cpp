// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// A window with an empty view of an empty scene: the least that a program like ours can show.

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMainWindow>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QGraphicsScene scene;
    QGraphicsView view(&scene);
    QMainWindow window;
    window.setCentralWidget(&view);
    window.resize(1280, 800);
    window.show();
    const int code = QApplication::exec();
    window.takeCentralWidget(); // which is not its own
    return code;
}
