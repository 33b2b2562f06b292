// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/detailsrows.h>

#include <app/panels/detailsfield.h>
#include <app/panels/detailsform.h>
#include <app/panels/markbox.h>
#include <app/panels/plannedendfield.h>
#include <app/panels/prioritybox.h>
#include <app/panels/stringlisteditor.h>

#include <fishbone/items/linkitem.h>
#include <fishbone/model/subjectattribute.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/treeitem.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QToolButton>

#include <functional>
#include <limits>

namespace {

// Too wide to stand beside their labels: these get the whole width of the panel.
constexpr int wide = 150;
constexpr int wider = wide + 50;

/** What a row is called and what it is about. */
struct Row
{
    const char *key;
    const char *name; ///< of the field, for style sheets and tests
    Language::Text label;
    DetailsField::Sharing sharing = DetailsField::Sharing::Common;
};

/** One whose attribute is in the list of attributes, with a widget of its own. */
template <typename Widget>
class Field : public DetailsField
{
public:
    Field(const Row &row, Widget *made, QWidget *form)
        : DetailsField(row.key, row.label, row.sharing, form)
        , m_field(made)
        , m_attribute(SubjectAttribute::find(QLatin1String(row.key)))
    {
        made->setObjectName(QLatin1String(row.name));
    }

    QWidget *widget() const override { return m_field; }

protected:
    Widget *field() const { return m_field; }
    /** Null for what is marked. */
    const SubjectAttribute *attribute() const { return m_attribute; }
    /** The value, where it is a number. */
    virtual int number(const TreeItem &subject) const { return m_attribute->get(subject).toInt(); }

private:
    Widget *m_field;
    const SubjectAttribute *m_attribute;
};

/** A line of text. */
class LineField : public Field<QLineEdit>
{
public:
    LineField(const Row &row, QWidget *form)
        : Field(row, new QLineEdit(form), form)
    {
        connect(field(), &QLineEdit::textChanged, this, &DetailsField::changed);
        connect(field(), &QLineEdit::returnPressed, this, &DetailsField::entered);
    }
    void fill(const TreeItem &subject, bool isMixed) override
    {
        field()->setText(isMixed ? QString() : attribute()->get(subject).toString());
        field()->setCursorPosition(0); // a long text shows its beginning
    }
    void store(TreeItem &target) const override { attribute()->set(target, field()->text()); }
    void showTexts(const QString &several) override { field()->setPlaceholderText(several); }
};

/** A widget of @p first and @p second beside each other. */
QWidget *beside(QWidget *first, QWidget *second, QWidget *form)
{
    auto *const row = new QWidget(form);
    auto *const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(first);
    layout->addWidget(second);
    return row;
}

/** A link, with a button that opens it before it is stored. */
class LinkField : public LineField
{
public:
    LinkField(const Row &row, QWidget *form)
        : LineField(row, form)
        , m_open(new QToolButton(form))
        , m_row(beside(field(), m_open, form))
    {
        m_open->setObjectName(QStringLiteral("detailsOpenLink"));
        field()->setMinimumWidth(wide);
        connect(m_open, &QToolButton::clicked, this, [this] { LinkItem::open(link()); });
        connect(this, &DetailsField::changed, this, &LinkField::showWhetherItOpens);
    }
    QWidget *widget() const override { return m_row; }
    void fill(const TreeItem &subject, bool isMixed) override
    {
        LineField::fill(subject, isMixed);
        showWhetherItOpens();
    }
    void store(TreeItem &target) const override { target.setUrl(link()); }
    void showTexts(const QString &several) override
    {
        LineField::showTexts(several);
        field()->setAccessibleName(DetailsForm::tr("Link"));
        m_open->setText(DetailsForm::tr("Open"));
        m_open->setAccessibleName(DetailsForm::tr("Open the link"));
    }

private:
    QString link() const { return field()->text().trimmed(); }
    void showWhetherItOpens() { m_open->setEnabled(!link().isEmpty()); }

    QToolButton *m_open;
    QWidget *m_row;
};

/** Lines of text. */
class TextField : public Field<QPlainTextEdit>
{
public:
    TextField(const Row &row, QWidget *form)
        : Field(row, new QPlainTextEdit(form), form)
    {
        field()->setTabChangesFocus(true);
        field()->setMinimumWidth(wider);
        connect(field(), &QPlainTextEdit::textChanged, this, &DetailsField::changed);
    }
    void fill(const TreeItem &subject, bool isMixed) override
    {
        field()->setPlainText(isMixed ? QString() : attribute()->get(subject).toString());
    }
    void store(TreeItem &target) const override
    {
        attribute()->set(target, field()->toPlainText());
    }
    void showTexts(const QString &several) override
    {
        field()->setPlaceholderText(several);
        field()->setToolTip(DetailsForm::tr(
            "What there is to say of it; of a cause, the evidence for its verdict"));
    }
};

/** Texts that each stand for themselves. */
class ListField : public Field<StringListEditor>
{
public:
    ListField(const Row &row, QWidget *form)
        : Field(row, new StringListEditor(form), form)
    {
        field()->setMinimumWidth(wider);
        connect(field(), &StringListEditor::changed, this, &DetailsField::changed);
    }
    void fill(const TreeItem &subject, bool isMixed) override
    {
        field()->setTexts(isMixed ? QStringList() : attribute()->get(subject).toStringList());
        field()->setEnabled(!isMixed); // a list that nobody sees would be replaced
    }
    void store(TreeItem &target) const override { attribute()->set(target, field()->texts()); }
    void showTexts(const QString &several) override
    {
        field()->setNames(DetailsForm::tr("Followers"), DetailsForm::tr("New follower"));
        field()->setToolTip(several);
    }
};

/** A number; the least that can be means that they differ. */
class NumberField : public Field<QSpinBox>
{
public:
    NumberField(const Row &row, QSpinBox *box, QWidget *form)
        : Field(row, box, form)
    {
        constexpr int usual = 80;
        // Any that a document may hold, with room for those that are usual.
        box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        box->setMinimumWidth(usual);
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &DetailsField::changed);
    }
    void fill(const TreeItem &subject, bool isMixed) override
    {
        field()->setValue(isMixed ? field()->minimum() : number(subject));
    }
    void store(TreeItem &target) const override { attribute()->set(target, field()->value()); }
    void showTexts(const QString &several) override { field()->setSpecialValueText(several); }
};

/** How far it is, with the icon of a bone beside it. */
class ProgressField : public NumberField
{
public:
    ProgressField(const Row &row, QWidget *icon, QWidget *form)
        : NumberField(row, new QSpinBox(form), form)
        , m_row(beside(field(), icon, form))
    {
        field()->setSuffix(QStringLiteral(" %"));
    }
    QWidget *widget() const override { return m_row; }
    void showTexts(const QString &several) override
    {
        NumberField::showTexts(several);
        field()->setAccessibleName(DetailsForm::tr("Progress"));
    }

private:
    QWidget *m_row;
};

/** The votes, which are no attribute. */
class VotesField : public NumberField
{
public:
    VotesField(const Row &row, QWidget *form)
        : NumberField(row, new QSpinBox(form), form)
    {
        field()->setMinimum(-1);
    }
    void store(TreeItem &target) const override
    {
        if (number(target) != field()->value())
            SubjectMarks::setVotes(target, field()->value());
    }

protected:
    int number(const TreeItem &subject) const override { return SubjectMarks::votes(subject); }
};

/** One of several values. */
class ChoiceField : public Field<QComboBox>
{
public:
    /** The values are those that @p list brings into the box, in the language of then. */
    ChoiceField(const Row &row, std::function<void(QComboBox &)> list, QWidget *form)
        : Field(row, new QComboBox(form), form)
        , m_list(std::move(list))
    {
        m_list(*field());
        field()->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        connect(field(), QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &DetailsField::changed);
    }
    void fill(const TreeItem &subject, bool isMixed) override
    {
        field()->setCurrentIndex(isMixed ? -1 : qMax(0, field()->findData(number(subject))));
    }
    void store(TreeItem &target) const override
    {
        if (hasValue())
            attribute()->set(target, field()->currentData());
    }
    bool hasValue() const override { return field()->currentIndex() >= 0; }
    void showTexts(const QString &several) override
    {
        m_list(*field());
        field()->setPlaceholderText(several);
        field()->setMinimumWidth(field()->sizeHint().width()); // of its own it keeps the first one
    }

private:
    std::function<void(QComboBox &)> m_list;
};

/** The status, with the icons that bones have. */
class StatusField : public ChoiceField
{
public:
    StatusField(const Row &row, QWidget *form)
        : ChoiceField(
              row, [](QComboBox &box) { MarkBox::listStatuses(box); }, form)
    {
    }
};

/** The verdict, which is no attribute. */
class VerdictField : public ChoiceField
{
public:
    VerdictField(const Row &row, QWidget *form)
        : ChoiceField(
              row, [](QComboBox &box) { MarkBox::listVerdicts(box); }, form)
    {
    }
    void store(TreeItem &target) const override
    {
        if (hasValue() && number(target) != field()->currentData().toInt())
            SubjectMarks::setVerdict(target, Verdict(field()->currentData().toInt()));
    }

protected:
    int number(const TreeItem &subject) const override
    {
        return int(SubjectMarks::verdict(subject));
    }
};

} // namespace

QVector<DetailsField *> DetailsRows::make(QWidget *form, QWidget *statusIcon)
{
    constexpr auto own = DetailsField::Sharing::Own;
    return {
        new LineField({"title", "detailsTitle", [] { return DetailsForm::tr("Title:"); }, own},
                      form),
        new VerdictField({"verdict", "detailsVerdict", [] { return DetailsForm::tr("Verdict:"); }},
                         form),
        new StatusField({"status", "detailsStatus", [] { return DetailsForm::tr("Status:"); }},
                        form),
        new LineField({"mgrname", "detailsManager", [] { return DetailsForm::tr("Responsible:"); }},
                      form),
        new PlannedEndField([] { return DetailsForm::tr("Planned end:"); }, form),
        new TextField({"detail", "detailsText", [] { return DetailsForm::tr("Details:"); }}, form),
        new VotesField({"votes", "detailsVotes", [] { return DetailsForm::tr("Votes:"); }}, form),
        new ProgressField(
            {"progress", "detailsProgress", [] { return DetailsForm::tr("Progress:"); }},
            statusIcon, form),
        new NumberField(
            {"priority", "detailsPriority", [] { return DetailsForm::tr("Priority:"); }},
            new PriorityBox(form), form),
        new LinkField({"url", "detailsLink", [] { return DetailsForm::tr("Link:"); }}, form),
        new ListField(
            {"followers", "detailsFollowers", [] { return DetailsForm::tr("Followers:"); }}, form),
        new LineField({"showid", "detailsNumber", [] { return DetailsForm::tr("Number:"); }, own},
                      form),
        new LineField({"mgrid", "detailsManagerId", [] { return DetailsForm::tr("Their id:"); }},
                      form),
    };
}
