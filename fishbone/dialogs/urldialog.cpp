// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/urldialog.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/base/followlanguage.h>
#include <fishbone/base/literaltext.h>
#include <fishbone/base/modalanswer.h>
#include <fishbone/base/warningbox.h>

#include <QComboBox>
#include <QCompleter>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStringList>

namespace {

/** Shows the wait cursor as long as it lives. */
class WaitCursor
{
    Q_DISABLE_COPY(WaitCursor)

public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};

QString &folderOfHistories()
{
    static QString folder;
    return folder;
}

/** Where the history of that name is kept. */
QString historyFile(const QString &name)
{
    const QString &folder = folderOfHistories();
    return folder.isEmpty() ? name : QDir(folder).filePath(name);
}

QStringList urlsFromText(const QString &text)
{
    QStringList urls;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QString url = line.trimmed();
        if (!url.isEmpty())
            urls.append(url);
    }
    return urls;
}

QByteArray textFromUrls(const QComboBox *urls)
{
    QString text;
    for (int i = 0; i < urls->count(); ++i)
        text += urls->itemText(i) + QLatin1Char('\n');
    return text.toUtf8();
}

/** Replaces the content of a file under the wait cursor; returns what went wrong, if anything. */
QString replaceContent(const QString &fileName, const QByteArray &content)
{
    const WaitCursor cursor;
    return replaceFile(fileName, content);
}

} // namespace

/** The history file of a dialog and what shows it. */
struct FISHBONE_NO_EXPORT URLDialog::Private
{
    QString fileName;
    QComboBox *urls; ///< a child of the dialog
};

URLDialog::URLDialog(const QString &title, const QString &fileName, QWidget *parent)
    : QDialog(parent)
    , m_d(new Private{
          historyFile(fileName.isEmpty() ? QStringLiteral("moraine2.urllist") : fileName),
          new QComboBox(this)})
{
    setModal(true);
    followLanguage(this,
                   [this, title] { setWindowTitle(title.isEmpty() ? tr("Input Url") : title); });

    m_d->urls->setEditable(true);
    m_d->urls->setInsertPolicy(QComboBox::NoInsert);
    // URLs that differ in case are different ones, which completing must not mix up.
    m_d->urls->completer()->setCaseSensitivity(Qt::CaseSensitive);
    m_d->urls->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_d->urls->setMinimumContentsLength(40);

    buildLayout();
    loadUrl();
}

URLDialog::~URLDialog() = default;

void URLDialog::setHistoryFolder(const QString &path)
{
    folderOfHistories() = path;
}

QString URLDialog::historyFolder()
{
    return folderOfHistories();
}

void URLDialog::buildLayout()
{
    auto *const label = new QLabel(this);
    label->setBuddy(m_d->urls);

    auto *const clean = new QPushButton(this);
    auto *const open = new QPushButton(this);
    auto *const cancel = new QPushButton(this);
    followLanguage(this, [this, label, clean, open, cancel] {
        label->setText(tr("Url:"));
        m_d->urls->setAccessibleName(label->text());
        clean->setText(tr("Clean"));
        open->setText(tr("Open"));
        cancel->setText(tr("Cancel"));
    });
    connect(clean, &QPushButton::clicked, this, &URLDialog::clean);
    connect(open, &QPushButton::clicked, this, &URLDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &URLDialog::reject);
    clean->setAutoDefault(false);
    open->setDefault(true);
    cancel->setAutoDefault(false);

    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(clean);
    buttons->addStretch();
    buttons->addWidget(open);
    buttons->addWidget(cancel);

    auto *const layout = new QGridLayout(this);
    layout->addWidget(label, 0, 0);
    layout->addWidget(m_d->urls, 0, 1);
    layout->addLayout(buttons, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);
}

QUrl URLDialog::linkToUrlDialog(const QString &url, QWidget *parent)
{
    auto *const dialog = new URLDialog(tr("Link to url"), QStringLiteral("linkto.urllist"), parent);
    dialog->setUrl(url);
    return modalAnswer(dialog, &URLDialog::url).value_or(QUrl());
}

QUrl URLDialog::saveUrlDialog(QWidget *parent)
{
    auto *const dialog = new URLDialog(tr("Save url"), QStringLiteral("save.urllist"), parent);
    return modalAnswer(dialog, &URLDialog::url).value_or(QUrl());
}

QUrl URLDialog::openUrlDialog(QWidget *parent)
{
    auto *const dialog = new URLDialog(tr("Open url"), QStringLiteral("open.urllist"), parent);
    return modalAnswer(dialog, &URLDialog::url).value_or(QUrl());
}

QUrl URLDialog::url() const
{
    return QUrl(m_d->urls->currentText(), QUrl::TolerantMode);
}

void URLDialog::setUrl(const QString &url)
{
    m_d->urls->setCurrentText(url);
    m_d->urls->lineEdit()->selectAll();
}

void URLDialog::loadUrl()
{
    QFile file(m_d->fileName);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const WaitCursor cursor;
    const QByteArray content = file.readAll();
    // Told the size, since it would end the text at a null character otherwise.
    m_d->urls->addItems(urlsFromText(QString::fromUtf8(content.constData(), content.size())));
    m_d->urls->lineEdit()->selectAll();
}

void URLDialog::saveUrl()
{
    const QString failure = replaceContent(m_d->fileName, textFromUrls(m_d->urls));
    if (!failure.isEmpty())
        showWarning(tr("Error"),
                    literalText(tr("Failed to open %1\n%2").arg(m_d->fileName, failure)), this);
}

void URLDialog::clean()
{
    m_d->urls->clear();
    saveUrl();
}

void URLDialog::accept()
{
    const QString text = m_d->urls->currentText().trimmed();
    if (text.isEmpty())
        return;
    m_d->urls->setEditText(text);
    if (m_d->urls->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
        m_d->urls->addItem(text);
    const QPointer<URLDialog> alive(this);
    saveUrl();
    if (alive)
        QDialog::accept();
}
