// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <host.h>

#include <QApplication>
#include <QFileInfo>

#include <cstdio>

/** Says what does not work in the host, and succeeds when that is nothing. */
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Host host;
    const QStringList faults = host.findFaults();
    for (const QString &fault : faults)
        std::printf("%s\n", qPrintable(fault));
    const QString name = QFileInfo(application.applicationFilePath()).fileName();
    std::printf("%s with Qt %s: %d faults\n", qPrintable(name), qVersion(), int(faults.size()));
    return faults.isEmpty() ? 0 : 1;
}
