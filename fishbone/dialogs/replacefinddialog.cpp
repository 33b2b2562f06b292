// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/replacefinddialog.h>

#include <fishbone/base/dialogtexts.h>
#include <fishbone/base/literaltext.h>
#include <fishbone/base/warningbox.h>

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <vector>

ReplaceFindDialog::ReplaceFindDialog(QWidget *parent)
    : QDialog(parent)
    , m_find(new QLineEdit(this))
    , m_replace(new QLineEdit(this))
    , m_caseSensitive(new QCheckBox(this))
    , m_columns(new QComboBox(this))
    , m_replaceButton(new QPushButton(this))
    , m_replaceAllButton(new QPushButton(this))
{
    m_columns->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    followLanguage(this, [this] { showTexts(); });
    m_columns->setCurrentIndex(0);
    buildLayout();
}

void ReplaceFindDialog::showTexts()
{
    setWindowTitle(tr("Finder"));
    m_caseSensitive->setText(tr("Case sensitive"));
    m_replaceButton->setText(tr("Replace"));
    m_replaceAllButton->setText(tr("Replace All"));
    m_columns->setAccessibleName(tr("Column"));
    setItemTexts(m_columns, {tr("title"), tr("uuid"), tr("showid"), tr("pid")});
}

void ReplaceFindDialog::buildLayout()
{
    auto *const findLabel = new QLabel(this);
    auto *const replaceLabel = new QLabel(this);
    auto *const find = new QPushButton(this);
    findLabel->setBuddy(m_find);
    replaceLabel->setBuddy(m_replace);
    followLanguage(this, [this, findLabel, replaceLabel, find] {
        find->setText(tr("Find"));
        findLabel->setText(tr("Find what:"));
        replaceLabel->setText(tr("Replace with:"));
        m_find->setAccessibleName(findLabel->text());
        m_replace->setAccessibleName(replaceLabel->text());
    });

    auto *const layout = new QGridLayout(this);
    layout->addWidget(findLabel, 0, 0);
    layout->addWidget(m_find, 0, 1);
    layout->addWidget(find, 0, 2);
    layout->addWidget(replaceLabel, 1, 0);
    layout->addWidget(m_replace, 1, 1);
    layout->addWidget(m_replaceButton, 1, 2);
    layout->addWidget(m_caseSensitive, 2, 0);
    layout->addWidget(m_columns, 2, 1);
    layout->addWidget(m_replaceAllButton, 2, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(3, 1);

    QWidget *const order[] = {m_find, m_replace,       m_caseSensitive,   m_columns,
                              find,   m_replaceButton, m_replaceAllButton};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
    connectControls(find);
}

void ReplaceFindDialog::connectControls(QPushButton *find)
{
    connect(m_find, &QLineEdit::returnPressed, this, &ReplaceFindDialog::find);
    connect(find, &QPushButton::clicked, this, &ReplaceFindDialog::find);
    connect(m_replace, &QLineEdit::returnPressed, this, &ReplaceFindDialog::replace);
    connect(m_replaceButton, &QPushButton::clicked, this, &ReplaceFindDialog::replace);
    connect(m_replaceAllButton, &QPushButton::clicked, this, &ReplaceFindDialog::replaceAll);
    connect(m_columns, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ReplaceFindDialog::enableCtrl);

    // The edit fields act on Return themselves; a default button would act a second time. Without
    // one, only the filter makes a focused button react to Return.
    for (QPushButton *const button : {find, m_replaceButton, m_replaceAllButton}) {
        button->setAutoDefault(false);
        button->installEventFilter(this);
    }
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
    if (model == m_model)
        return;
    m_model = model;
    m_matches.clear();
}

QModelIndexList ReplaceFindDialog::matches() const
{
    QModelIndexList live;
    for (const QPersistentModelIndex &match : m_matches) {
        if (match.isValid())
            live.append(match);
    }
    return live;
}

void ReplaceFindDialog::enableCtrl(int index)
{
    if (index != m_column) {
        m_column = index;
        m_matches.clear();
    }
    const bool isIdentifier = index == 1 || index == 3;
    m_matchFlags = (isIdentifier ? Qt::MatchEndsWith : Qt::MatchContains) | Qt::MatchRecursive;

    const bool replaceable = index == 0 || index == 2;
    m_replace->setEnabled(replaceable);
    m_replaceButton->setEnabled(replaceable);
    m_replaceAllButton->setEnabled(replaceable);
}

void ReplaceFindDialog::find()
{
    if (!m_model)
        return;
    const QString text = m_find->text();
    const bool caseSensitive = m_caseSensitive->isChecked();
    const bool known =
        !matches().isEmpty() && text == m_lastText && caseSensitive == m_lastCaseSensitive;
    if (!known) {
        m_lastCaseSensitive = caseSensitive;
        m_lastText = text;
        m_column = m_columns->currentIndex();
        m_matches = search(text, caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
    }
    if (m_matches.isEmpty())
        showWarning(tr("Finder"), literalText(tr("Not found key word %1.").arg(text)), this);
}

/** All rows that match, parents before children. A document without a head has no index. */
QList<QPersistentModelIndex> ReplaceFindDialog::search(const QString &text,
                                                       Qt::CaseSensitivity sensitivity) const
{
    struct Step
    {
        QModelIndex parent;
        int next;
        int rows;
    };
    QList<QPersistentModelIndex> found;
    std::vector<Step> path{{QModelIndex(), 0, m_model->rowCount()}};
    while (!path.empty()) {
        Step &step = path.back();
        if (step.next == step.rows) {
            path.pop_back();
            continue;
        }
        const int row = step.next++;
        const QModelIndex first = m_model->index(row, 0, step.parent);
        const QModelIndex index = m_model->index(row, m_column, step.parent);
        const QString shown = index.data(Qt::DisplayRole).toString();
        const bool isHit = m_matchFlags.testFlag(Qt::MatchEndsWith)
                               ? shown.endsWith(text, sensitivity)
                               : shown.contains(text, sensitivity);
        if (index.isValid() && isHit)
            found.append(index);
        if (const int rows = first.isValid() ? m_model->rowCount(first) : 0)
            path.push_back({first, 0, rows});
    }
    return found;
}

void ReplaceFindDialog::replace()
{
    const QString replacement = m_replace->text();
    const QModelIndexList found = matches();
    if (!m_model || replacement.isEmpty() || found.isEmpty())
        return;
    QString text = found.last().data(Qt::DisplayRole).toString();
    text.replace(m_find->text(), replacement,
                 m_caseSensitive->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive);
    // The text goes no further: only undoable commands change titles, and this dialog knows none.
}

void ReplaceFindDialog::replaceAll()
{
    // As in replace(), the model is not changed from here.
}
