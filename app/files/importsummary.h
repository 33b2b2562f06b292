// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/exchangereport.h>

#include <QList>
#include <QObject>
#include <QPair>

class DocumentLoader;
class QWidget;

/** Tells what became of the things in imported files that a diagram has no field for: in one box
 * for all that was asked for at once, which waits for nobody. */
class ImportSummary : public QObject
{
    Q_OBJECT

public:
    /** Follows @p loader, which owns this object. The box stands over @p window. */
    ImportSummary(DocumentLoader *loader, QWidget *window);

    /** The same for a program without a window: each line on the error output, behind the name. */
    static void print(const QString &source, const ExchangeReport &report);

private:
    void note(const QString &source, const ExchangeReport &report);
    void show();

    QWidget *m_window;
    QList<QPair<QString, ExchangeReport>> m_reports; ///< that were not shown yet
};
