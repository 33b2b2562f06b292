// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/templates.h>

#include <app/common/language.h>
#include <app/files/safename.h>

#include <fishbone/base/collation.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/model/treeitem.h>

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>

namespace {

struct BuiltIn
{
    const char *file;
    const char *name;
};

constexpr BuiltIn builtIns[] = {
    {"empty", QT_TRANSLATE_NOOP("Templates", "Empty")},
    {"6m", QT_TRANSLATE_NOOP("Templates", "6M: production")},
    {"4s", QT_TRANSLATE_NOOP("Templates", "4S: services")},
    {"8p", QT_TRANSLATE_NOOP("Templates", "8P: marketing")},
    {"4p", QT_TRANSLATE_NOOP("Templates", "4P: administration")},
    {"5-whys", QT_TRANSLATE_NOOP("Templates", "5 whys")},
    {"incident", QT_TRANSLATE_NOOP("Templates", "Incident review")},
    {"risks", QT_TRANSLATE_NOOP("Templates", "Project risks")},
};

} // namespace

namespace Templates {

QList<Template> all()
{
    const QString place =
        QStringLiteral(":/app/templates/%1/%2.txt").arg(Language::shown(), QStringLiteral("%1"));
    QList<Template> templates;
    for (const BuiltIn &each : builtIns)
        templates.append({QCoreApplication::translate("Templates", each.name),
                          place.arg(QLatin1String(each.file)), false});
    QFileInfoList own = QDir(folder()).entryInfoList({QStringLiteral("*.json")}, QDir::Files);
    const QCollator collator = Collation::ofUser();
    std::sort(own.begin(), own.end(), [&collator](const QFileInfo &one, const QFileInfo &other) {
        return collator(one.completeBaseName(), other.completeBaseName());
    });
    for (const QFileInfo &file : qAsConst(own))
        templates.append({file.completeBaseName(), file.filePath(), true});
    return templates;
}

std::unique_ptr<TreeItem> diagram(const Template &chosen)
{
    using Format = DiagramExchange::Format;
    return DiagramExchange::readFile(chosen.path, chosen.isOwn ? Format::Json : Format::Text);
}

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/templates");
}

QString pathOf(const QString &name)
{
    return QStringLiteral("%1/%2.json").arg(folder(), safeFileName(name));
}

} // namespace Templates
