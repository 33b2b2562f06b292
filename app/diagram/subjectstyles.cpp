// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/subjectstyles.h>

#include <app/diagram/diagramsession.h>
#include <app/diagram/subjectedit.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>
#include <fishbone/undo/editattributes.h>

#include <QCoreApplication>
#include <QHash>
#include <QJsonObject>
#include <QPersistentModelIndex>
#include <QSet>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

const QLatin1String styleKey("spearstyle");
const QLatin1String inheritanceKey("inheritanceParent");

QString translated(const char *text)
{
    return QCoreApplication::translate("SubjectStyles", text);
}

QJsonObject valuesOf(const SpearStyle &style)
{
    QJsonObject values;
    style.write(values);
    return values;
}

/** The own style of @p subject; empty when it has none. */
QJsonObject styleOf(const TreeItem &subject)
{
    return subject.spearStyle() ? valuesOf(*subject.spearStyle()) : QJsonObject();
}

/** The subject above @p subject; null for a head, which has only the container of a document. */
const TreeItem *parentOf(const TreeItem &subject)
{
    const TreeItem *const parent = subject.parent();
    return parent && parent->parent() ? parent : nullptr;
}

bool inherits(const QJsonObject &style)
{
    return style.value(inheritanceKey).toBool();
}

/** Which subjects get which styles, and so all that have the style of one of them. */
class StyleChange
{
public:
    /** Gives @p subjects, which are in the order of the document, @p style. */
    StyleChange(const QList<const TreeItem *> &subjects, const QJsonObject &style)
        : m_chosen(subjects.cbegin(), subjects.cend())
    {
        for (const TreeItem *subject : subjects) {
            set(subject, inherits(style) ? inheritedBy(*subject, style) : style);
            handDown(subject);
        }
    }

    std::unique_ptr<EditAttributes> command(FishModel *model) const
    {
        auto command = std::make_unique<EditAttributes>(model);
        for (const TreeItem *subject : m_changed) {
            const QJsonObject before = EditAttributes::stateOf(*subject);
            QJsonObject after = before;
            after.insert(styleKey, m_styles.value(subject));
            command->add(model->indexFromItem(subject), before, after);
        }
        return command;
    }

private:
    /** The style that the parent of @p subject will have, marked as that; for a head its own
     * @p style without the mark. */
    QJsonObject inheritedBy(const TreeItem &subject, const QJsonObject &style) const
    {
        const TreeItem *const parent = parentOf(subject);
        QJsonObject inherited = style;
        if (parent) {
            inherited = m_styles.contains(parent) ? m_styles.value(parent) : styleOf(*parent);
            if (inherited.isEmpty())
                inherited = valuesOf(*SpearStyle::global());
        }
        inherited.insert(inheritanceKey, parent != nullptr);
        return inherited;
    }

    void set(const TreeItem *subject, const QJsonObject &style)
    {
        m_styles.insert(subject, style);
        m_changed.push_back(subject);
    }

    /** Gives the style of @p giver to those below that have it from there. */
    void handDown(const TreeItem *giver)
    {
        const auto heirs = [this](const TreeItem &above) { return heirsOf(above); };
        visitPreOrder(giver, heirs, [this, giver](const TreeItem *subject) {
            if (subject != giver)
                set(subject, inheritedBy(*subject, {}));
            return true;
        });
    }

    /** The children of @p above that have its style from it, but for those that are chosen. */
    QList<const TreeItem *> heirsOf(const TreeItem &above) const
    {
        QList<const TreeItem *> heirs;
        for (const TreeItem *child : above.childItems()) {
            const SpearStyle *const style = child->spearStyle();
            if (style && style->inheritanceParent() && !m_chosen.contains(child))
                heirs.append(child);
        }
        return heirs;
    }

    const QSet<const TreeItem *> m_chosen;
    QHash<const TreeItem *, QJsonObject> m_styles;
    std::vector<const TreeItem *> m_changed;
};

/** Lets the user edit @p style, of what @p editor shows. A head has no parent to have it from. */
bool askFor(SpearStyle &style, bool hasParent, const FishEditor &editor)
{
    SpearStyleDialog dialog(style, true, editor.window());
    dialog.setPreviewBackground(editor.view()->backgroundBrush().color());
    dialog.setInheritanceOffered(
        hasParent,
        translated(QT_TRANSLATE_NOOP(
            "SubjectStyles",
            "The subject looks as the one above it, also when the style of that is changed")));
    return dialog.exec() == QDialog::Accepted;
}

/** Those of @p indexes that still are subjects. */
QList<const TreeItem *> subjectsAt(const FishModel &model,
                                   const QList<QPersistentModelIndex> &indexes)
{
    QList<const TreeItem *> subjects;
    for (const QPersistentModelIndex &index : indexes) {
        if (const TreeItem *const subject = model.getTreeItem(index))
            subjects.append(subject);
    }
    return subjects;
}

QList<QPersistentModelIndex> kept(const QModelIndexList &indexes)
{
    return {indexes.cbegin(), indexes.cend()};
}

} // namespace

namespace SubjectStyles {

void edit(DiagramSession &session, const QModelIndexList &indexes)
{
    const FishModel &model = *session.model();
    const QList<QPersistentModelIndex> edited = kept(indexes); // the dialog runs an event loop
    const QList<const TreeItem *> asked = subjectsAt(model, edited);
    if (asked.isEmpty())
        return;
    const QJsonObject before = styleOf(*asked.constFirst());
    SpearStyle style;
    style.read(before.isEmpty() ? valuesOf(*SpearStyle::global()) : before);
    const bool hasParent = std::any_of(asked.cbegin(), asked.cend(), [](const TreeItem *subject) {
        return parentOf(*subject) != nullptr;
    });
    if (!askFor(style, hasParent, *session.editor()) || valuesOf(style) == before)
        return;
    const StyleChange change(subjectsAt(model, edited), valuesOf(style));
    SubjectEdit::run(session, change.command(session.model()),
                     [] { return translated(QT_TRANSLATE_NOOP("SubjectStyles", "Change style")); });
}

void remove(DiagramSession &session, const QModelIndexList &indexes)
{
    const StyleChange change(subjectsAt(*session.model(), kept(indexes)), {});
    SubjectEdit::run(session, change.command(session.model()),
                     [] { return translated(QT_TRANSLATE_NOOP("SubjectStyles", "Remove style")); });
}

int removeAll(DiagramSession &session)
{
    FishModel *const model = session.model();
    auto command = std::make_unique<EditAttributes>(model);
    const TreeItem *const container = session.container();
    visitSubjects(container, [&](const TreeItem *subject) {
        if (subject == container ||
            (!subject->spearStyle() && !SubjectMarks::colour(*subject).isValid()))
            return true;
        const QJsonObject before = EditAttributes::stateOf(*subject);
        QJsonObject after = before;
        after.insert(styleKey, QJsonObject());
        SubjectMarks::setColour(after, QColor());
        command->add(model->indexFromItem(subject), before, after);
        return true;
    });
    const int count = command->count();
    SubjectEdit::run(session, std::move(command), [] {
        return translated(QT_TRANSLATE_NOOP("SubjectStyles", "Take off own colours and styles"));
    });
    return count;
}

} // namespace SubjectStyles
