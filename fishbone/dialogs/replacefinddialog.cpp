// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/replacefinddialog.h>

#include <fishbone/base/dialogtexts.h>
#include <fishbone/base/literaltext.h>
#include <fishbone/base/warningbox.h>
#include <fishbone/dialogs/cellsearch.h>

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QPushButton>

namespace {

constexpr int resultsRow = 3;

} // namespace

/** The controls of a dialog and its last search. */
struct FISHBONE_NO_EXPORT ReplaceFindDialog::Private
{
    Q_DISABLE_COPY(Private)

    explicit Private(ReplaceFindDialog *owner);

    void showTexts();
    void buildLayout();
    void connectControls();

    ReplaceFindDialog *const dialog;
    QLabel *const findLabel;
    QLabel *const replaceLabel;
    QLineEdit *const searchField;
    QLineEdit *const replacementField;
    QCheckBox *const caseBox;
    QComboBox *const columnBox;
    QPushButton *const findButton;
    QPushButton *const replaceButton;
    QPushButton *const replaceAllButton;
    QPointer<QWidget> results;

    QPointer<QAbstractItemModel> model;
    QList<QPersistentModelIndex> matches;
    QString lastText;
    int column = 0;
    bool wasCaseSensitive = false;
    Qt::MatchFlags matchFlags = Qt::MatchContains | Qt::MatchRecursive;
};

ReplaceFindDialog::Private::Private(ReplaceFindDialog *owner)
    : dialog(owner)
    , findLabel(new QLabel(owner))
    , replaceLabel(new QLabel(owner))
    , searchField(new QLineEdit(owner))
    , replacementField(new QLineEdit(owner))
    , caseBox(new QCheckBox(owner))
    , columnBox(new QComboBox(owner))
    , findButton(new QPushButton(owner))
    , replaceButton(new QPushButton(owner))
    , replaceAllButton(new QPushButton(owner))
{
    findLabel->setBuddy(searchField);
    replaceLabel->setBuddy(replacementField);
    columnBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    followLanguage(owner, [this] { showTexts(); });
    columnBox->setCurrentIndex(0);
    buildLayout();
}

void ReplaceFindDialog::Private::showTexts()
{
    dialog->setWindowTitle(tr("Finder"));
    findLabel->setText(tr("Find what:"));
    searchField->setAccessibleName(findLabel->text());
    replaceLabel->setText(tr("Replace with:"));
    replacementField->setAccessibleName(replaceLabel->text());
    caseBox->setText(tr("Case sensitive"));
    findButton->setText(tr("Find"));
    replaceButton->setText(tr("Replace"));
    replaceAllButton->setText(tr("Replace All"));
    columnBox->setAccessibleName(tr("Column"));
    setItemTexts(columnBox, {tr("title"), tr("uuid"), tr("showid"), tr("pid")});
}

void ReplaceFindDialog::Private::buildLayout()
{
    auto *const layout = new QGridLayout(dialog);
    layout->addWidget(findLabel, 0, 0);
    layout->addWidget(searchField, 0, 1);
    layout->addWidget(findButton, 0, 2);
    layout->addWidget(replaceLabel, 1, 0);
    layout->addWidget(replacementField, 1, 1);
    layout->addWidget(replaceButton, 1, 2);
    layout->addWidget(caseBox, 2, 0);
    layout->addWidget(columnBox, 2, 1);
    layout->addWidget(replaceAllButton, 2, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(resultsRow, 1);

    QWidget *const order[] = {searchField, replacementField, caseBox,         columnBox,
                              findButton,  replaceButton,    replaceAllButton};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void ReplaceFindDialog::Private::connectControls()
{
    connect(searchField, &QLineEdit::returnPressed, dialog, &ReplaceFindDialog::find);
    connect(findButton, &QPushButton::clicked, dialog, &ReplaceFindDialog::find);
    connect(replacementField, &QLineEdit::returnPressed, dialog, &ReplaceFindDialog::replace);
    connect(replaceButton, &QPushButton::clicked, dialog, &ReplaceFindDialog::replace);
    connect(replaceAllButton, &QPushButton::clicked, dialog, &ReplaceFindDialog::replaceAll);
    connect(columnBox, QOverload<int>::of(&QComboBox::currentIndexChanged), dialog,
            &ReplaceFindDialog::enableCtrl);

    // The edit fields act on Return themselves; a default button would act a second time. Without
    // one, only the filter makes a focused button react to Return.
    for (QPushButton *const button : {findButton, replaceButton, replaceAllButton}) {
        button->setAutoDefault(false);
        button->installEventFilter(dialog);
    }
}

ReplaceFindDialog::ReplaceFindDialog(QWidget *parent)
    : QDialog(parent)
    , m_d(std::make_unique<Private>(this))
{
    m_d->connectControls();
}

ReplaceFindDialog::~ReplaceFindDialog() = default;

void ReplaceFindDialog::setResultsArea(QWidget *area)
{
    if (area == m_d->results)
        return;
    delete m_d->results;
    m_d->results = area;
    if (!area)
        return;
    auto *const layout = static_cast<QGridLayout *>(QDialog::layout());
    layout->addWidget(area, resultsRow, 0, 1, layout->columnCount());
}

QLineEdit *ReplaceFindDialog::searchField() const
{
    return m_d->searchField;
}

QLineEdit *ReplaceFindDialog::replacementField() const
{
    return m_d->replacementField;
}

QCheckBox *ReplaceFindDialog::caseBox() const
{
    return m_d->caseBox;
}

QComboBox *ReplaceFindDialog::columnBox() const
{
    return m_d->columnBox;
}

QPushButton *ReplaceFindDialog::findButton() const
{
    return m_d->findButton;
}

QPushButton *ReplaceFindDialog::replaceButton() const
{
    return m_d->replaceButton;
}

QPushButton *ReplaceFindDialog::replaceAllButton() const
{
    return m_d->replaceAllButton;
}

bool ReplaceFindDialog::eventFilter(QObject *watched, QEvent *event)
{
    auto *const button = qobject_cast<QPushButton *>(watched);
    if (!button || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    button->click();
    return true;
}

void ReplaceFindDialog::setModel(QAbstractItemModel *model)
{
    if (model == m_d->model)
        return;
    m_d->model = model;
    m_d->matches.clear();
}

QModelIndexList ReplaceFindDialog::matches() const
{
    QModelIndexList live;
    for (const QPersistentModelIndex &match : m_d->matches) {
        if (match.isValid())
            live.append(match);
    }
    return live;
}

void ReplaceFindDialog::enableCtrl(int index)
{
    if (index != m_d->column) {
        m_d->column = index;
        m_d->matches.clear();
    }
    const bool isIdentifier = index == 1 || index == 3;
    m_d->matchFlags = (isIdentifier ? Qt::MatchEndsWith : Qt::MatchContains) | Qt::MatchRecursive;

    const bool replaceable = index == 0 || index == 2;
    m_d->replacementField->setEnabled(replaceable);
    m_d->replaceButton->setEnabled(replaceable);
    m_d->replaceAllButton->setEnabled(replaceable);
}

bool ReplaceFindDialog::search()
{
    if (!m_d->model)
        return false;
    const QString text = m_d->searchField->text();
    const bool caseSensitive = m_d->caseBox->isChecked();
    const bool known =
        !matches().isEmpty() && text == m_d->lastText && caseSensitive == m_d->wasCaseSensitive;
    if (!known) {
        m_d->wasCaseSensitive = caseSensitive;
        m_d->lastText = text;
        m_d->column = m_d->columnBox->currentIndex();
        m_d->matches = cellsWith(*m_d->model, m_d->column, text, m_d->matchFlags,
                                 caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
    }
    return !m_d->matches.isEmpty();
}

void ReplaceFindDialog::find()
{
    if (!m_d->model || search())
        return;
    const QString text = m_d->searchField->text();
    showWarning(tr("Finder"), literalText(tr("Not found key word %1.").arg(text)), this);
}

void ReplaceFindDialog::replace()
{
    const QString replacement = m_d->replacementField->text();
    const QModelIndexList found = matches();
    if (!m_d->model || replacement.isEmpty() || found.isEmpty())
        return;
    QString text = found.last().data(Qt::DisplayRole).toString();
    text.replace(m_d->searchField->text(), replacement,
                 m_d->caseBox->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive);
    // The text goes no further: only undoable commands change titles, and this dialog knows none.
}

void ReplaceFindDialog::replaceAll()
{
    // As in replace(), the model is not changed from here.
}
