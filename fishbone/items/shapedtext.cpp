// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/shapedtext.h>

#include <algorithm>
#include <climits>

#include <QCache>
#include <QColor>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QPointer>
#include <QTextDocument>
#include <QTextLayout>

namespace {

constexpr int mostLetters = 1 << 17;       ///< of all texts that are kept; some ten bytes each
constexpr int lettersAText = 16;           ///< that a text costs beside its own
constexpr qreal unlimited = INT_MAX / 256; ///< a line without a given width takes what it needs

int shaped = 0;

struct Key
{
    QFont font;
    QString text;

    bool operator==(const Key &other) const { return text == other.text && font == other.font; }
};

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
std::size_t qHash(const Key &key, std::size_t seed = 0)
#else
uint qHash(const Key &key, uint seed = 0)
#endif
{
    return qHash(key.text, seed) ^ qHash(key.font, seed);
}

/** What was laid out lately. */
struct Recent
{
    QPointer<QCoreApplication> application;
    QCache<Key, ShapedText> texts{mostLetters};
};

void forgetTexts();

/** What the running application has laid out; its fonts end with it. */
Recent &recent()
{
    static Recent known;
    if (known.application != QCoreApplication::instance()) {
        known.application = QCoreApplication::instance();
        known.texts.clear();
        qAddPostRoutine(forgetTexts);
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp, forgetTexts);
    }
    return known;
}

void forgetTexts()
{
    recent().texts.clear();
}

/** The space that a document leaves around its text. */
qreal documentMargin()
{
    static const qreal margin = QTextDocument().documentMargin();
    return margin;
}

/** As a document decides for each paragraph: by the first letter that has a direction. */
Qt::LayoutDirection directionOf(const QString &text)
{
    const auto letters = text.toUcs4();
    for (const uint letter : letters) {
        const QChar::Direction direction = QChar::direction(letter);
        if (direction == QChar::DirL)
            return Qt::LeftToRight;
        if (direction == QChar::DirR || direction == QChar::DirAL)
            return Qt::RightToLeft;
    }
    return Qt::LeftToRight;
}

} // namespace

bool ShapedText::isPlain(const QString &text)
{
    return std::none_of(text.cbegin(), text.cend(), [](QChar letter) {
        const ushort code = letter.unicode();
        return code == '\t' || code == '\r' || code == QChar::LineSeparator ||
               code == QChar::ParagraphSeparator || code == QChar::ObjectReplacementCharacter ||
               (code >= 0xfdd0 && code <= 0xfdef);
    });
}

const ShapedText &ShapedText::of(const QFont &font, const QString &text)
{
    Recent &known = recent();
    const Key key{font, text};
    ShapedText *found = known.texts.object(key);
    if (!found) {
        found = std::make_unique<ShapedText>(font, text).release();
        known.texts.insert(key, found, std::min(mostLetters, int(text.size()) + lettersAText));
    }
    return *found;
}

int ShapedText::shapedTexts()
{
    return shaped;
}

ShapedText::ShapedText(const QFont &font, const QString &text)
{
    ++shaped;
    const qreal margin = documentMargin();
    qreal bottom = margin;
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    m_paragraphs.reserve(std::size_t(paragraphs.size()));
    for (const QString &paragraph : paragraphs)
        bottom = addParagraph(font, paragraph, bottom);
    m_size.setHeight(bottom + margin);
    m_size.rwidth() += 2 * margin;
}

ShapedText::~ShapedText() = default;

/** Lays a paragraph out below @p top and returns where it ends. */
qreal ShapedText::addParagraph(const QFont &font, const QString &text, qreal top)
{
    const Qt::LayoutDirection direction = directionOf(text);
    QTextOption option(direction == Qt::LeftToRight ? Qt::AlignLeft : Qt::AlignRight);
    option.setTextDirection(direction);
    option.setWrapMode(QTextOption::ManualWrap);
    auto layout = std::make_unique<QTextLayout>(text, font);
    layout->setCacheEnabled(true);
    layout->setTextOption(option);
    layout->setPosition(QPointF(documentMargin(), top));
    layout->beginLayout();
    qreal height = 0;
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(unlimited);
        line.setLineWidth(line.naturalTextWidth());
        line.setPosition(QPointF(0, height));
        height += line.height();
        m_size.setWidth(qMax(m_size.width(), line.naturalTextWidth()));
    }
    layout->endLayout();
    m_paragraphs.push_back(std::move(layout));
    return top + height;
}

void ShapedText::addLines(std::vector<ShapedTextItem::Line> &lines, const QTextLayout &layout,
                          const QPointF &corner)
{
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        lines.push_back({line.naturalTextRect().translated(corner), line.ascent()});
    }
}

std::vector<ShapedTextItem::Line> ShapedText::lines() const
{
    std::vector<ShapedTextItem::Line> lines;
    for (const auto &paragraph : m_paragraphs)
        addLines(lines, *paragraph, paragraph->position());
    return lines;
}

void ShapedText::paint(QPainter &painter, const QColor &color, const QRectF &exposed) const
{
    painter.save();
    if (exposed.isValid())
        painter.setClipRect(exposed, Qt::IntersectClip);
    painter.setPen(color);
    for (const auto &paragraph : m_paragraphs)
        paragraph->draw(&painter, QPointF(), {}, exposed);
    painter.restore();
}
