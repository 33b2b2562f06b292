// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/recovery/recoverymodel.h>

#include <app/common/shownpath.h>
#include <app/recovery/documentpicture.h>

#include <QLocale>

#include <algorithm>

RecoveryModel::RecoveryModel(const QList<LeftCopy> &copies, QObject *parent)
    : QAbstractTableModel(parent)
    , m_copies(copies)
{
}

int RecoveryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_copies.size());
}

int RecoveryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant RecoveryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const LeftCopy &copy = m_copies.at(index.row());
    if (role == Qt::DisplayRole)
        return text(copy, index.column());
    if (role == Qt::DecorationRole && index.column() == Name)
        return picture(copy);
    if (role == Qt::ToolTipRole && index.column() == File)
        return text(copy, File);
    return QVariant();
}

QVariant RecoveryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case Name:
        return tr("Document");
    case File:
        return tr("File");
    case Saved:
        return tr("Autosaved");
    case Size:
        return tr("Size");
    default:
        return QVariant();
    }
}

QString RecoveryModel::text(const LeftCopy &copy, int column) const
{
    switch (column) {
    case Name:
        return copy.name;
    case File:
        return copy.original.isEmpty() ? tr("(never saved)") : ShownPath::of(copy.original);
    case Saved:
        return QLocale().toString(copy.saved, QLocale::ShortFormat);
    case Size:
        return QLocale().formattedDataSize(copy.size);
    default:
        return QString();
    }
}

QIcon RecoveryModel::picture(const LeftCopy &copy) const
{
    auto found = m_pictures.constFind(copy.copy);
    if (found == m_pictures.constEnd()) {
        const QPixmap picture = DocumentPicture::render(copy.copy, pictureSize);
        QIcon icon(picture);
        icon.addPixmap(picture, QIcon::Selected); // without the colour of the selection
        found = m_pictures.insert(copy.copy, icon);
    }
    return *found;
}

void RecoveryModel::forget(const QString &copy)
{
    const auto found = std::find_if(m_copies.cbegin(), m_copies.cend(),
                                    [&copy](const LeftCopy &each) { return each.copy == copy; });
    if (found == m_copies.cend())
        return;
    const int row = int(found - m_copies.cbegin());
    beginRemoveRows(QModelIndex(), row, row);
    m_copies.removeAt(row);
    endRemoveRows();
}
