// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMetaObject>
#include <QPixmap>
#include <QPointer>
#include <QRectF>
#include <QTimer>
#include <QWidget>

class DiagramSession;

/**
 * The whole drawing at a small size, with a frame around what the view shows. A press or a drag
 * moves the view there, the arrow keys move it by a part of what it shows.
 *
 * The picture is kept and made anew only after the diagram has changed, so that moving the view
 * costs nothing.
 */
class Minimap : public QWidget
{
    Q_OBJECT

public:
    explicit Minimap(QWidget *parent = nullptr);

    /** Shows the drawing of @p session, or nothing when that is null. */
    void setSession(DiagramSession *session);

    QSize sizeHint() const override { return QSize(240, 160); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void forgetPicture();
    void makePicture();
    QTransform sceneToWidget() const;
    QPolygonF shownPart() const;
    void centerViewOn(const QPoint &pos);

    QPointer<DiagramSession> m_session;
    QList<QMetaObject::Connection> m_connections;
    QRectF m_drawing;  ///< the part of the scene that the picture shows
    QPixmap m_picture; ///< null when it has to be made
    QTimer m_later;    ///< runs while the picture is that of a drawing before its latest change
};
