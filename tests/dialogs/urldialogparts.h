// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/dialogs/urldialog.h>
#include <tests/support/dialogchecks.h>
#include <tests/support/filecontent.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/** The parts of the URL dialog and of its history files, as its tests use them. */
namespace UrlDialogParts {

using TestSupport::contentOf;

/**
 * A fresh working folder as long as it lives, since relative names of history files count from
 * there.
 */
class WorkingFolder
{
    Q_DISABLE_COPY(WorkingFolder)

public:
    WorkingFolder() { QDir::setCurrent(m_folder.path()); }
    ~WorkingFolder() { QDir::setCurrent(m_oldPath); }

    bool isValid() const
    {
        return m_folder.isValid() && QDir::currentPath() == QDir(m_folder.path()).canonicalPath();
    }
    QString filePath(const QString &fileName) const { return m_folder.filePath(fileName); }

    /** Everything there is in it. */
    QStringList entries() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private:
    QString m_oldPath = QDir::currentPath();
    QTemporaryDir m_folder;
};

inline QComboBox *combo(const URLDialog &dialog)
{
    return dialog.findChild<QComboBox *>();
}

/** The remembered URLs, separated by "|". */
inline QString entries(const URLDialog &dialog)
{
    QStringList texts;
    for (int i = 0; i < combo(dialog)->count(); ++i)
        texts.append(combo(dialog)->itemText(i));
    return texts.join(QLatin1Char('|'));
}

inline void click(const URLDialog &dialog, const char *button)
{
    QTest::mouseClick(TestSupport::buttonWithText(dialog, QLatin1String(button)), Qt::LeftButton);
}

inline bool writeContent(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace UrlDialogParts
