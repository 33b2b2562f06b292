// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>
#include <tests/app/picturesubject.h>

#include <tests/support/modaldriver.h>

#include <app/diagram/diagramview.h>
#include <app/export/exportdialog.h>
#include <app/recovery/recoverystore.h>

#include <fishbone/items/expanditem.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QSpinBox>

#include <memory>

/** What tests of the dialog that exports a picture do with it. */
namespace ExportDialogParts {

/** Begins each test with the classic look and nothing remembered. */
inline void forget()
{
    QDir(RecoveryStore::folder()).removeRecursively();
    QSettings().remove(QStringLiteral("export"));
    DiagramView classic; // whose drawing there is to compare with
    classic.look = DiagramLook::Classic;
    classic.becomeUsual();
}

template <typename Field>
Field *field(const QDialog &dialog, const char *name)
{
    return dialog.findChild<Field *>(QLatin1String(name));
}

/** Makes the next keys go to @p field. */
inline void focus(QWidget *field)
{
    field->window()->activateWindow();
    AppFixture::settle();
    field->setFocus();
}

/** Enters @p text as a user does, and leaves the field. */
inline void type(QAbstractSpinBox *box, const char *text)
{
    focus(box);
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(text));
    QTest::keyClick(box, Qt::Key_Tab);
}

inline void chooseEntry(QComboBox *box, int row)
{
    focus(box);
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < row; ++i)
        QTest::keyClick(box, Qt::Key_Down);
}

/** The titles of the bones that the window shows. */
inline QStringList visibleTitles(const AppFixture &app)
{
    QStringList titles;
    const QList<QGraphicsItem *> items = app.window.editor()->scene()->items();
    for (const QGraphicsItem *item : items) {
        const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
        if (spear && spear->isVisible())
            titles.append(spear->treeItem()->title());
    }
    titles.sort();
    return titles;
}

/** What a picture of the classic drawing covers: all but the buttons. */
inline QRectF coveredBy(const AppFixture &app)
{
    QRectF covered;
    const QList<QGraphicsItem *> items = app.window.editor()->scene()->items();
    for (const QGraphicsItem *item : items) {
        if (item->isVisible() && item->type() != ExpandItem::Type)
            covered |= item->sceneBoundingRect();
    }
    return covered;
}

inline QString resultOf(const QDialog &dialog)
{
    return field<QLabel>(dialog, "result")->text();
}

} // namespace ExportDialogParts
