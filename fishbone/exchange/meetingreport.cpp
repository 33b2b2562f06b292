// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/meetingreport.h>

#include <fishbone/base/collation.h>
#include <fishbone/base/filereplacement.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/meetingpage.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/model/treeitem.h>

#include <QBuffer>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>
#include <tuple>

namespace {

const QSizeF slideProportions(16, 9); // what the picture is arranged for

/** The place of a verdict in the order of causes. */
int rankOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::RootCause:
        return 0;
    case Verdict::Confirmed:
        return 1;
    case Verdict::Checking:
        return 2;
    case Verdict::RuledOut:
        return 4;
    default:
        return 3;
    }
}

/** The day on which @p subject is to be done; invalid for none. */
QDate endOf(const TreeItem &subject)
{
    const qint64 planned = subject.planEndDate();
    return planned == 0 ? QDate() : QDateTime::fromMSecsSinceEpoch(planned).date();
}

void say(QString *error, const QString &reason)
{
    if (error)
        *error = reason;
}

bool isKind(const QString &fileName, const char *suffix)
{
    return QFileInfo(fileName).suffix().compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0;
}

} // namespace

MeetingReport::MeetingReport(const TreeItem *head, const QDate &today)
    : m_head(head)
    , m_today(today)
{
    QStringList path;
    OutlineWalk::walk(*head, [&](const TreeItem &subject, int level) {
        path = path.mid(0, level);
        const Verdict verdict = SubjectMarks::verdict(subject);
        const int votes = SubjectMarks::votes(subject);
        if (verdict != Verdict::None || votes > 0)
            m_causes.append({&subject, path.mid(1), verdict, votes});
        const QDate end = endOf(subject);
        if (level > 0 && (end.isValid() || !subject.managerName().isEmpty()))
            m_actions.append({&subject, subject.managerName(), end, isOverdue(subject, m_today)});
        path.append(subject.title());
    });
    std::stable_sort(m_causes.begin(), m_causes.end(), [](const Cause &a, const Cause &b) {
        return std::make_tuple(rankOf(a.verdict), -a.votes) <
               std::make_tuple(rankOf(b.verdict), -b.votes);
    });
    const QCollator collator = Collation::ofUser();
    std::stable_sort(m_actions.begin(), m_actions.end(), [&](const Action &a, const Action &b) {
        const int names = collator.compare(a.person, b.person);
        const auto key = [](const Action &action, int name) {
            const QDate end = action.end.isValid() ? action.end : QDate(9999, 12, 31);
            return std::make_tuple(action.person.isEmpty(), name, action.person, end);
        };
        return key(a, names) < key(b, 0);
    });
}

void MeetingReport::setLook(const DiagramLook::Options &options)
{
    m_look = options;
}

bool MeetingReport::isOverdue(const TreeItem &subject, const QDate &today)
{
    const QDate end = endOf(subject);
    return end.isValid() && end < today && !TaskStatuses::isEnded(subject.status());
}

bool MeetingReport::canWrite(const QString &fileName)
{
    return isKind(fileName, "html") || isKind(fileName, "pdf") || isKind(fileName, "md");
}

QString MeetingReport::html(const QString &picture) const
{
    return MeetingPage(*m_head, m_causes, m_actions).html(picture);
}

QString MeetingReport::markdown(const QString &pictureName) const
{
    return MeetingPage(*m_head, m_causes, m_actions).markdown(pictureName);
}

std::unique_ptr<DiagramPicture> MeetingReport::arranged() const
{
    DiagramLook::Options options = m_look;
    options.hasLegend = true;
    auto drawn = std::make_unique<DiagramPicture>(m_head, options);
    drawn->arrangeFor(slideProportions);
    return drawn;
}

/** The picture as an SVG element; empty when it cannot be drawn. */
QByteArray MeetingReport::picture() const
{
    PictureOptions wanted;
    wanted.title = m_head->title();
    QByteArray bytes;
    arranged()->render(PictureExport::Format::Svg, wanted, bytes);
    return bytes.mid(qMax(0, int(bytes.indexOf("<svg"))));
}

bool MeetingReport::write(const QString &fileName, QString *error) const
{
    if (!canWrite(fileName)) {
        say(error, tr("its name must end in .html, .pdf or .md"));
        return false;
    }
    if (isKind(fileName, "pdf"))
        return writePdf(fileName, error);
    QString reason;
    if (isKind(fileName, "html")) {
        reason = replaceFile(fileName, html(QString::fromUtf8(picture())).toUtf8());
    } else {
        const QString drawing = fileName + QStringLiteral(".svg");
        reason = replaceFile(drawing, picture(), fileName); // read by nobody who may not read that
        if (reason.isEmpty())
            reason = replaceFile(fileName, markdown(QFileInfo(drawing).fileName()).toUtf8());
    }
    say(error, reason);
    return reason.isEmpty();
}

bool MeetingReport::canWriteActions(const QString &fileName)
{
    return isKind(fileName, "csv") || isKind(fileName, "md");
}

bool MeetingReport::writeActions(const QString &fileName, QString *error) const
{
    if (!canWriteActions(fileName)) {
        say(error, tr("its name must end in .csv or .md"));
        return false;
    }
    const MeetingPage page(*m_head, m_causes, m_actions);
    const QString reason =
        replaceFile(fileName, isKind(fileName, "csv") ? page.actionsCsv(m_cellSeparator)
                                                      : page.actionsMarkdown().toUtf8());
    say(error, reason);
    return reason.isEmpty();
}

bool MeetingReport::writePdf(const QString &fileName, QString *error) const
{
    constexpr int resolution = 96; // dots per inch of a page
    constexpr int margin = 15;     // millimetres
    constexpr int sharpness = 4;   // dots of the picture for one of the page
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(m_head->title());
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    writer.setResolution(resolution * sharpness);
    const int width = writer.width() / sharpness;

    const std::unique_ptr<DiagramPicture> drawn = arranged();
    const QSize shown = drawn->size().scaled(width, width, Qt::KeepAspectRatio).toSize();
    QImage image(shown * sharpness, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawn->paint(painter, image.rect());
    painter.end();

    QTextDocument document;
    document.setDocumentMargin(0); // the page has margins
    document.setPageSize(QSizeF(width, double(writer.height()) / sharpness));
    document.addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("picture")), image);
    document.setHtml(html(QStringLiteral("<img src=\"picture\" width=\"%1\" height=\"%2\">")
                              .arg(shown.width())
                              .arg(shown.height())));
    document.print(&writer);
    const QString reason = replaceFile(fileName, bytes);
    say(error, reason);
    return reason.isEmpty();
}
