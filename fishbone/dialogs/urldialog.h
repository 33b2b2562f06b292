// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QDialog>
#include <QUrl>

#include <memory>

/**
 * A modal dialog in which the user types a URL or picks one that was entered before.
 *
 * The URLs are remembered in a history file: UTF-8 text, one URL per line, without a limit. A
 * relative file name is resolved against setHistoryFolder(). Most callers need only the static
 * functions, which use one history per purpose.
 */
class FISHBONE_EXPORT URLDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * Makes a dialog with the history of @p fileName, "moraine2.urllist" when that is empty.
     * An empty @p title becomes "Input Url".
     */
    explicit URLDialog(const QString &title = {}, const QString &fileName = {},
                       QWidget *parent = nullptr);
    ~URLDialog() override;

    /**
     * Keeps the histories of dialogs made from now on in @p path, which has to exist; empty, as it
     * is at first, stands for the working folder of the process.
     */
    static void setHistoryFolder(const QString &path);
    /** The folder that was set; empty for the working folder. */
    static QString historyFolder();

    /** Asks for the URL to link to, starting on @p url; empty when the dialog is cancelled. */
    static QUrl linkToUrlDialog(const QString &url, QWidget *parent = nullptr);

    /** Asks for the URL to save to; empty when the dialog is cancelled. */
    static QUrl saveUrlDialog(QWidget *parent = nullptr);

    /** Asks for the URL to open; empty when the dialog is cancelled. */
    static QUrl openUrlDialog(QWidget *parent = nullptr);

    /** The entered URL, parsed tolerantly. */
    QUrl url() const;

    /** Puts @p url into the edit field, all of it selected. */
    void setUrl(const QString &url);

public Q_SLOTS:
    /**
     * Appends the URLs of the history file to the list, white space around them and empty lines
     * left out, and selects the text in the edit field. A file that cannot be read adds nothing.
     */
    void loadUrl();

    /**
     * Replaces the history file by the list, whole or not at all. Shows a warning and leaves the
     * file as it was when it cannot be written.
     */
    void saveUrl();

    /** Empties the list and the history file. */
    void clean();

    /**
     * Takes the entered URL without the white space around it, remembers it when it is not in the
     * list yet (upper and lower case differ), saves the history and closes the dialog as accepted,
     * even if saving failed. Does nothing when no URL is entered.
     */
    void accept() override;

private:
    struct Private;

    void buildLayout();

    const std::unique_ptr<Private> m_d;
};
