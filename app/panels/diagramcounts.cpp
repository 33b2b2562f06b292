// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/diagramcounts.h>

#include <app/common/language.h>
#include <app/diagram/diagramsession.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/subjectwalk.h>

namespace {

/** The number of subjects below @p root. */
int subjectsBelow(const TreeItem &root)
{
    int count = 0;
    visitSubjects(&root, [&count](const TreeItem *subject) {
        count += subject->childCount();
        return true;
    });
    return count;
}

} // namespace

DiagramCounts::DiagramCounts(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("counts"));
    setMargin(4);
    Language::bind(this, [this] { count(); });
}

void DiagramCounts::setSession(DiagramSession *session)
{
    if (m_session)
        m_session->disconnect(this);
    m_session = session;
    if (session)
        connect(session, &DiagramSession::stateChanged, this, &DiagramCounts::count);
    count();
}

void DiagramCounts::count()
{
    const FishInfo *const document = m_session ? m_session->document() : nullptr;
    setVisible(document);
    if (!document)
        return;
    QString text = tr("%n subject(s)", nullptr, subjectsBelow(*document->treeItem()));
    if (const int selected = int(m_session->editor()->selectedItems().size()))
        text += tr(", %n selected", nullptr, selected);
    setText(text);
}
