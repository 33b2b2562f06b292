// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/undo/editattributes.h>

#include <QJsonObject>
#include <QMetaType>

#include <functional>
#include <memory>

using Change = std::function<void(TreeItem &)>;
Q_DECLARE_METATYPE(Change)

namespace TestSupport {

/** The state that @p subject would have after @p change. */
inline QJsonObject changed(const TreeItem &subject, const Change &change)
{
    TreeItem draft(EditAttributes::stateOf(subject));
    change(draft);
    return EditAttributes::stateOf(draft);
}

inline std::unique_ptr<EditAttributes> edit(FishModel &model, const QModelIndex &index,
                                            const Change &change)
{
    const TreeItem &subject = *model.getTreeItem(index);
    return std::make_unique<EditAttributes>(&model, index, EditAttributes::stateOf(subject),
                                            changed(subject, change));
}

inline Change title(const char *text)
{
    return [text](TreeItem &item) { item.setTitle(QLatin1String(text)); };
}

inline QJsonObject redText()
{
    SpearStyle style;
    style.setTextColor(SpearStyle::ssNormal, Qt::red);
    QJsonObject values;
    style.write(values);
    return values;
}

} // namespace TestSupport
