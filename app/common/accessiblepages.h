// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleWidget>
#include <QObject>

class QStackedWidget;

/**
 * A stack of pages as assistive technology sees it: with the page that is shown and no other. Each
 * document has a drawing, a tree and fields of its own, which are all there at once; only those of
 * the current document can be seen, and only those are told of.
 */
class AccessiblePages : public QAccessibleWidget
{
    Q_DISABLE_COPY(AccessiblePages)

public:
    /** Has every stack of the program, those inside tab widgets included, be seen so. */
    static void install();

    explicit AccessiblePages(QStackedWidget *pages);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

protected:
    ~AccessiblePages() override = default;

private:
    QWidget *shown() const;

    QObject m_listener; ///< ends the connection with this object
};
