// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// How a TreeItem lets the user edit its style: defined here, since a subject knows nothing of
// dialogs.

#include <fishbone/model/stylesession.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QJsonObject>

void TreeItem::setSpearStyle()
{
    const StyleSession session(this);
    if (m_spearStyle) {
        SpearStyleDialog(*m_spearStyle).exec();
        return;
    }
    QJsonObject values;
    SpearStyle::global()->write(values);
    SpearStyle scratch;
    scratch.read(values);
    const bool accepted = SpearStyleDialog(scratch).exec() == QDialog::Accepted;
    if (!accepted || !session.nodeLives())
        return;
    scratch.write(values);
    setSpearStyle(values);
}
