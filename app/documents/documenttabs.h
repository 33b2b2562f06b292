// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStackedWidget>

class CanvasTheme;
class DocumentTab;
class FishInfo;
class QTabWidget;

/**
 * The open documents, each in a tab. There always is a current tab: while no document is open that
 * is one without a document, and a page in its place says what can be done.
 */
class DocumentTabs : public QStackedWidget
{
    Q_OBJECT

public:
    explicit DocumentTabs(CanvasTheme *theme, QWidget *parent = nullptr);
    ~DocumentTabs() override;

    /** Shows @p page while no document is open, and takes it over. */
    void setEmptyPage(QWidget *page);

    /** The tab that is shown, or the one without a document. */
    DocumentTab *current() const;
    /** The tabs with documents, as they stand. */
    QList<DocumentTab *> tabs() const;
    /** The documents of the tabs. */
    QList<FishInfo *> documents() const;
    /** The tab of @p document, null when there is none. */
    DocumentTab *tabOf(const FishInfo *document) const;
    /** The tab of the document in the file of that canonical path, null when there is none. */
    DocumentTab *tabOfFile(const QString &path) const;

    /** Makes a tab for @p document, which leaves the model that lists it, and shows the tab. */
    DocumentTab *add(FishInfo *document);
    /** Puts a new tab for @p document, which looks as @p tab did, in place of @p tab. */
    DocumentTab *replace(DocumentTab *tab, FishInfo *document);
    /** Closes @p tab without a question. */
    void remove(DocumentTab *tab);

    void setCurrent(DocumentTab *tab);
    /** Shows the tab @p step places further right, or left; behind the last comes the first. */
    void go(int step);

    /** Brings what the tabs say of their documents up to date. */
    void refresh();

Q_SIGNALS:
    /** There is a new tab, which is about to take its place. */
    void added(DocumentTab *tab);
    /** @p tab is the current one now. */
    void currentChanged(DocumentTab *tab);
    /** The user wants to close @p tabs. */
    void closeRequested(const QList<DocumentTab *> &tabs);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    DocumentTab *insert(int position, FishInfo *document);
    DocumentTab *tabAt(int position) const;
    void showContextMenu(const QPoint &pos);
    void follow();

    CanvasTheme *m_theme;
    QTabWidget *m_tabs;
    DocumentTab *m_none;            ///< the one without a document
    DocumentTab *m_shown = nullptr; ///< what was announced last; only compared
};
