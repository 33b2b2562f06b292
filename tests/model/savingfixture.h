// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <tests/support/documents.h>
#include <tests/support/filecontent.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

/** A document with a head and two bones, and a folder to save it in. */
class SavingFixture
{
protected:
    static QByteArray contentOf(const QString &path) { return TestSupport::contentOf(path); }

    static bool makeFile(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }

    static void prepare()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QStandardPaths::setTestModeEnabled(true);
    }

    void setUp()
    {
        QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/tmp")).removeRecursively();
        m_folder = std::make_unique<QTemporaryDir>();
        m_model = std::make_unique<FishModel>();
        m_info = TestSupport::loadDocument(*m_model, QStringLiteral("Plan[a,b]"));
    }

    void tearDown()
    {
        m_model.reset();
        m_folder.reset();
    }

    QString path(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FishModel> m_model;
    FishInfo *m_info = nullptr;
};
