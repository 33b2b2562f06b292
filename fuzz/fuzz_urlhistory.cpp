// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// A file of remembered addresses from anywhere: shown in the dialog, saved, extended, loaded again.

#include <fuzz/fuzzing.h>

#include <fishbone/dialogs/urldialog.h>

#include <QComboBox>
#include <QTemporaryDir>

using namespace Fuzzing;

namespace {

QStringList entriesOf(const URLDialog &dialog)
{
    const auto *const box = dialog.findChild<QComboBox *>();
    QStringList entries;
    for (int i = 0; i < box->count(); ++i)
        entries.append(box->itemText(i));
    return entries;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("fuzz.urllist"));
    writeFile(path, QByteArray(reinterpret_cast<const char *>(data), int(size)));

    URLDialog dialog(QString(), path);
    const QStringList loaded = entriesOf(dialog);
    for (const QString &entry : loaded)
        require(!entry.isEmpty() && entry == entry.trimmed(), "entries are trimmed and not empty");
    dialog.saveUrl();
    const QByteArray first = contentOf(path);

    URLDialog again(QString(), path);
    require(entriesOf(again) == loaded, "what was saved is loaded again");
    again.saveUrl();
    requireEqual(contentOf(path), first, "what was saved and loaded is saved as the same bytes");

    const QString entered = QString::fromUtf8(first).left(40);
    again.setUrl(entered);
    again.accept();
    const bool isRemembered = entriesOf(again).contains(entered.trimmed());
    require(isRemembered || entered.trimmed().isEmpty(), "what was entered is remembered");
    return 0;
}
