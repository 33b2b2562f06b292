// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/finder.h>

#include <app/diagramsession.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

Finder::Finder(DiagramSession *session, QWidget *window)
    : QObject(window)
    , m_session(session)
    , m_dialog(new ReplaceFindDialog(window))
{
    m_dialog->setModel(session->model());
    // These come after the dialog's own connections, so the search is done.
    connect(field(ReplaceFindDialog::tr("Find what:")), &QLineEdit::returnPressed, this,
            &Finder::showNext);
    connect(button(ReplaceFindDialog::tr("Find")), &QPushButton::clicked, this, &Finder::showNext);
    connect(field(ReplaceFindDialog::tr("Replace with:")), &QLineEdit::returnPressed, this,
            &Finder::replaceCurrent);
    connect(button(ReplaceFindDialog::tr("Replace")), &QPushButton::clicked, this,
            &Finder::replaceCurrent);
    connect(button(ReplaceFindDialog::tr("Replace All")), &QPushButton::clicked, this,
            &Finder::replaceAll);
}

void Finder::setSession(DiagramSession *session)
{
    m_session = session;
    m_dialog->setModel(session->model());
    m_matches.clear();
    m_current = -1;
}

void Finder::show()
{
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
    QLineEdit *const text = field(ReplaceFindDialog::tr("Find what:"));
    text->setFocus();
    text->selectAll();
}

QPushButton *Finder::button(const QString &text) const
{
    const QList<QPushButton *> buttons = m_dialog->findChildren<QPushButton *>();
    const auto found = std::find_if(buttons.cbegin(), buttons.cend(),
                                    [&](const QPushButton *each) { return each->text() == text; });
    Q_ASSERT(found != buttons.cend());
    return *found;
}

QLineEdit *Finder::field(const QString &label) const
{
    const QList<QLineEdit *> fields = m_dialog->findChildren<QLineEdit *>();
    const auto found = std::find_if(fields.cbegin(), fields.cend(), [&](const QLineEdit *each) {
        return each->accessibleName() == label;
    });
    Q_ASSERT(found != fields.cend());
    return *found;
}

Qt::CaseSensitivity Finder::caseSensitivity() const
{
    return m_dialog->findChild<QCheckBox *>()->isChecked() ? Qt::CaseSensitive
                                                           : Qt::CaseInsensitive;
}

void Finder::showNext()
{
    const QModelIndexList matches = m_dialog->matches();
    if (matches != m_matches)
        m_current = -1;
    m_matches = matches;
    if (matches.isEmpty())
        return; // the dialog has said so
    m_current = (m_current + 1) % matches.size();
    m_session->select(matches.at(m_current).siblingAtColumn(0));
    Q_EMIT message(tr("Match %1 of %2").arg(m_current + 1).arg(matches.size()));
}

/** Replaces in the title of the subject at @p index; false when there is nothing to replace. */
bool Finder::rename(const QModelIndex &index)
{
    const TreeItem *const subject = m_session->model()->getTreeItem(index);
    const QString search = field(ReplaceFindDialog::tr("Find what:"))->text();
    if (!subject || search.isEmpty())
        return false;
    QString title = subject->title();
    title.replace(search, field(ReplaceFindDialog::tr("Replace with:"))->text(), caseSensitivity());
    if (title == subject->title())
        return false;
    m_session->editor()->renameItem(index.siblingAtColumn(0), title);
    return true;
}

void Finder::replaceCurrent()
{
    const QModelIndexList matches = m_dialog->matches();
    if (m_current < 0 || m_current >= matches.size()) {
        m_dialog->find();
        showNext();
        return;
    }
    const bool replaced = matches.at(m_current).column() == 0 && rename(matches.at(m_current));
    showNext();
    if (!replaced)
        Q_EMIT message(tr("Only titles can be replaced."));
}

void Finder::replaceAll()
{
    m_dialog->find();
    int count = 0;
    const QModelIndexList matches = m_dialog->matches();
    for (const QModelIndex &match : matches) {
        if (match.column() == 0 && rename(match))
            ++count;
    }
    m_current = -1;
    Q_EMIT message(tr("%n title(s) replaced", nullptr, count));
}
