// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/minimap.h>

#include <app/common/language.h>
#include <app/diagram/diagramsession.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/exchange/pictureexport.h>

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>

#include <utility>

namespace {

constexpr int margin = 4;
/** Milliseconds from a change of the diagram to a new picture of all of it, which a large one
 * should not wait for after each key. */
constexpr int patience = 150;

/** Scrolls @p bar by half of what it shows. */
void scrollByHalf(QScrollBar *bar, int direction)
{
    bar->setValue(bar->value() + direction * bar->pageStep() / 2);
}

} // namespace

Minimap::Minimap(QWidget *parent)
    : QWidget(parent)
{
    setMinimumSize(80, 60);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    Language::bind(this, &QWidget::setAccessibleName, [] { return tr("Overview of the drawing"); });
    m_later.setSingleShot(true);
    m_later.setInterval(patience);
    connect(&m_later, &QTimer::timeout, this, &Minimap::forgetPicture);
}

void Minimap::setSession(DiagramSession *session)
{
    if (session == m_session)
        return;
    for (const QMetaObject::Connection &connection : std::as_const(m_connections))
        disconnect(connection);
    m_connections.clear();
    m_session = session;
    if (session) {
        const auto moved = [this] { update(); };
        GraphicsView *const view = session->editor()->view();
        m_connections = {
            connect(session, &DiagramSession::stateChanged, &m_later,
                    QOverload<>::of(&QTimer::start)),
            connect(session, &DiagramSession::drawingRebuilt, this, &Minimap::forgetPicture),
            connect(session, &QObject::destroyed, this, &Minimap::forgetPicture),
        };
        for (QScrollBar *const bar : {view->horizontalScrollBar(), view->verticalScrollBar()}) {
            m_connections.append(connect(bar, &QScrollBar::valueChanged, this, moved));
            m_connections.append(connect(bar, &QScrollBar::rangeChanged, this, moved));
        }
    }
    forgetPicture();
}

void Minimap::forgetPicture()
{
    m_later.stop();
    m_picture = QPixmap();
    update();
}

void Minimap::makePicture()
{
    FishScene *const scene = m_session->editor()->scene();
    m_drawing = PictureExport::visibleRect(*scene);
    m_picture = QPixmap(size() * devicePixelRatioF());
    m_picture.setDevicePixelRatio(devicePixelRatioF());
    const QBrush canvas = m_session->editor()->view()->backgroundBrush();
    m_picture.fill(canvas.style() == Qt::NoBrush ? palette().color(QPalette::Base)
                                                 : canvas.color());
    if (m_drawing.isEmpty())
        return;
    QPainter painter(&m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    scene->render(&painter, sceneToWidget().mapRect(m_drawing), m_drawing);
}

QTransform Minimap::sceneToWidget() const
{
    const QRectF area = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    const double scale = qMin(area.width() / m_drawing.width(), area.height() / m_drawing.height());
    QTransform transform;
    transform.translate(area.center().x(), area.center().y());
    transform.scale(scale, scale);
    transform.translate(-m_drawing.center().x(), -m_drawing.center().y());
    return transform;
}

/** What the view shows, in coordinates of this widget; the view may be rotated. */
QPolygonF Minimap::shownPart() const
{
    const GraphicsView *const view = m_session->editor()->view();
    return sceneToWidget().map(view->mapToScene(view->viewport()->rect()));
}

void Minimap::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    if (!m_session || !m_session->document()) {
        painter.fillRect(rect(), palette().base());
        return;
    }
    if (m_picture.isNull())
        makePicture();
    painter.drawPixmap(0, 0, m_picture);
    if (m_drawing.isEmpty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    const QPolygonF shown = shownPart();
    QPainterPath hidden; // by the edges of the view
    hidden.addRect(rect());
    QPainterPath frame;
    frame.addPolygon(shown);
    QColor veil = palette().color(QPalette::Text);
    veil.setAlpha(36);
    painter.fillPath(hidden.subtracted(frame), veil);
    painter.setPen(QPen(palette().color(QPalette::Highlight), hasFocus() ? 2 : 1));
    painter.drawPolygon(shown);
}

void Minimap::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    forgetPicture();
}

void Minimap::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        forgetPicture();
}

void Minimap::centerViewOn(const QPoint &pos)
{
    if (m_session && !m_picture.isNull() && !m_drawing.isEmpty())
        m_session->editor()->view()->centerOn(sceneToWidget().inverted().map(QPointF(pos)));
}

void Minimap::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        centerViewOn(event->pos());
}

void Minimap::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        centerViewOn(event->pos());
}

void Minimap::keyPressEvent(QKeyEvent *event)
{
    if (!m_session)
        return QWidget::keyPressEvent(event);
    GraphicsView *const view = m_session->editor()->view();
    switch (event->key()) {
    case Qt::Key_Left:
        return scrollByHalf(view->horizontalScrollBar(), -1);
    case Qt::Key_Right:
        return scrollByHalf(view->horizontalScrollBar(), 1);
    case Qt::Key_Up:
        return scrollByHalf(view->verticalScrollBar(), -1);
    case Qt::Key_Down:
        return scrollByHalf(view->verticalScrollBar(), 1);
    default:
        QWidget::keyPressEvent(event);
    }
}
