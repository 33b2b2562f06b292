// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/htmlpicture.h>

#include <fishbone/drawing/clearpicture.h>
#include <fishbone/exchange/darkcolors.h>
#include <fishbone/exchange/htmlparts.h>
#include <fishbone/exchange/linksafety.h>
#include <fishbone/exchange/svgpicture.h>

#include <QCryptographicHash>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/** What a policy calls the text @p part by. */
QByteArray digestOf(const QByteArray &part)
{
    return "'sha256-" + QCryptographicHash::hash(part, QCryptographicHash::Sha256).toBase64() +
           '\'';
}

QByteArray button(const char *id, const QString &text, const QString &hint)
{
    return QByteArray("<button id=\"") + id + "\" title=\"" + SvgPicture::escaped(hint) +
           "\" aria-label=\"" + SvgPicture::escaped(hint) + "\">" + SvgPicture::escaped(text) +
           "</button>";
}

/** The palette in the dark: who chose shades of grey gets no others. */
DiagramLook::Palette darkPalette(const ClearColors &colors)
{
    return colors.palette() == DiagramLook::GrayColors ? DiagramLook::GrayColors
                                                       : DiagramLook::onDark(colors.palette());
}

/** What puts a drawing in grey, which is made for white paper, on such a paper in the dark. */
QByteArray paperFor(const ClearColors &colors)
{
    if (DiagramLook::isDark(darkPalette(colors)))
        return {};
    return "main > svg { background: " + colors.paper().name().toLatin1() + "; }\n";
}

} // namespace

QByteArray HtmlPicture::head(const QString &title, const QString &language, const QByteArray &style)
{
    return "<!DOCTYPE html>\n" + HtmlParts::root(language) +
           "\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
           "base-uri 'none'; form-action 'none'; style-src " +
           digestOf(style) + "; script-src " + digestOf(HtmlParts::script) +
           "\">\n<meta name=\"referrer\" content=\"no-referrer\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
           SvgPicture::escaped(title) + "</title>\n<style>" + style + "</style>\n</head>\n<body>\n";
}

QByteArray HtmlPicture::bar(const QString &title)
{
    const QByteArray search = SvgPicture::escaped(tr("Search"));
    return "<header>\n<h1>" + SvgPicture::escaped(title) +
           "</h1>\n<input id=\"search\" type=\"search\" placeholder=\"" + search +
           "\" aria-label=\"" + search + "\">\n<output id=\"found\" for=\"search\"></output>\n" +
           button("expand", tr("Expand all"), tr("Expand all")) +
           button("fold", tr("Fold"), tr("Fold to the categories")) +
           button("out", QStringLiteral("\u2212"), tr("Zoom out")) +
           button("in", QStringLiteral("+"), tr("Zoom in")) +
           button("fit", tr("Fit"), tr("Show all")) + "\n</header>\n";
}

QByteArray HtmlPicture::details()
{
    return "<aside id=\"details\" hidden aria-live=\"polite\">\n" +
           button("close", QStringLiteral("\u00d7"), tr("Close"))
               .replace("<button", "<button class=\"close\"") +
           "\n<p id=\"path\" class=\"muted\"></p>\n<h2 id=\"title\"></h2>\n"
           "<p id=\"state\" class=\"muted\"></p>\n<p id=\"detail\"></p>\n"
           "<p><a id=\"link\" target=\"_blank\" rel=\"noopener noreferrer\"></a></p>\n</aside>\n";
}

/** What the page tells of the subjects besides their titles. */
QByteArray HtmlPicture::data(const ClearPicture &picture)
{
    QJsonArray all;
    for (const PictureSubject &subject : picture.content().meanings) {
        QJsonObject about;
        const auto put = [&](const char *name, const QString &value) {
            if (!value.isEmpty())
                about.insert(QLatin1String(name), value);
        };
        put("state", subject.state);
        put("detail", subject.detail);
        put("link", LinkSafety::webOrMail(subject.link));
        all.append(about);
    }
    // Nothing in it may look like the end of the element that holds it.
    return QJsonDocument(all)
        .toJson(QJsonDocument::Compact)
        .replace('<', "\\u003c")
        .replace('>', "\\u003e")
        .replace('&', "\\u0026");
}

bool HtmlPicture::write(const ClearPicture &picture, const QString &title, const QString &language,
                        QIODevice &device)
{
    const auto put = [&](const QByteArray &bytes) { return device.write(bytes) == bytes.size(); };
    const DarkColors colors(picture.inColors(picture.colors()),
                            picture.inColors(ClearColors(darkPalette(picture.colors()))));
    const QByteArray style = HtmlParts::style +
                             QByteArray("@media (prefers-color-scheme: dark) {\n") +
                             paperFor(picture.colors()) + colors.rules() + "}\n";
    SvgPictureOptions options;
    options.isPart = true;
    options.dark = &colors;
    options.description =
        tr("Fishbone diagram. Arrow keys move, Return shows details, the space bar folds.");
    return put(head(title, language, style)) && put(bar(title)) && put("<main>\n") &&
           SvgPicture::write(picture, options, device) && put(details()) &&
           put("</main>\n<script type=\"application/json\" id=\"data\">") && put(data(picture)) &&
           put("</script>\n<script>") && put(HtmlParts::script) &&
           put("</script>\n</body>\n</html>\n");
}
