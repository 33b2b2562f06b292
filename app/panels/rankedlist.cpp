// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/rankedlist.h>

#include <app/common/language.h>
#include <app/diagram/marknames.h>

#include <fishbone/exchange/meetingreport.h>
#include <fishbone/model/treeitem.h>

#include <QHeaderView>
#include <QLocale>
#include <QPainter>
#include <QStyledItemDelegate>

namespace {

/** Paints a bar whose length is the part of the most votes that the role tells, from 0 to 1, and
 * the number of votes behind it. */
class BarDelegate : public QStyledItemDelegate
{
public:
    BarDelegate(int role, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_role(role)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyleOptionViewItem place = option;
        const double part = index.data(m_role).toDouble();
        if (part > 0) {
            constexpr int margin = 3;
            const int longest = option.rect.width() - roomForNumber(option);
            QRect bar = option.rect.adjusted(margin, margin, 0, -margin);
            bar.setWidth(qMax(1, qRound(longest * part)));
            painter->fillRect(bar, option.palette.color(QPalette::Highlight).lighter(130));
            place.rect.setLeft(bar.right());
        }
        QStyledItemDelegate::paint(painter, place, index);
    }

private:
    static int roomForNumber(const QStyleOptionViewItem &option)
    {
        return option.fontMetrics.horizontalAdvance(QStringLiteral("000000"));
    }

    int m_role;
};

} // namespace

RankedList::RankedList(QWidget *parent)
    : SubjectList(parent)
{
    setObjectName(QStringLiteral("ranked"));
    setEditTriggers(NoEditTriggers);
    setItemDelegateForColumn(Votes, new BarDelegate(valueRole, this));
    Language::bind(this, [this] {
        setAccessibleName(tr("Ranked causes"));
        setHeaderLabels({tr("Votes"), tr("Cause"), tr("Verdict"), tr("In")});
        refresh();
    });
    constexpr int wide = 220;
    for (const int column : {Votes, Title})
        setColumnWidth(column, wide);
    Language::bind(this, [this] { setColumnWidth(VerdictColumn, roomForVerdicts()); });
}

/** What any verdict needs in the language of the moment. */
int RankedList::roomForVerdicts() const
{
    constexpr int usual = 130;
    constexpr int margins = 16;
    int room = usual;
    const QStringList names = MarkNames::verdicts();
    for (const QString &name : names)
        room = qMax(room, fontMetrics().horizontalAdvance(name) + margins);
    return room;
}

QVector<SubjectList::Entry> RankedList::entries(const MeetingReport &report) const
{
    int most = 1;
    for (const MeetingReport::Cause &cause : report.causes())
        most = qMax(most, cause.votes);
    QVector<Entry> all;
    for (const MeetingReport::Cause &cause : report.causes()) {
        const QString votes = cause.votes > 0 ? QLocale().toString(cause.votes) : QString();
        const QString verdict =
            cause.verdict == Verdict::None ? QString() : MarkNames::of(cause.verdict);
        all.append(
            {cause.subject,
             QString(),
             {votes, cause.subject->title(), verdict, cause.above.join(QStringLiteral(" › "))},
             {double(cause.votes) / most}});
    }
    return all;
}
