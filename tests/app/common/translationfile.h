// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/support/sourcefolder.h>

#include <QDir>
#include <QFile>
#include <QHash>
#include <QStringList>
#include <QVector>
#include <QXmlStreamReader>

/** The files in translations/, for tests of what is in them. */
namespace Translations {

/** One text of a translation file. */
struct Text
{
    QString context;
    QString source;
    QStringList forms; ///< more than one where the number of things matters
    bool isNumerus = false;
    bool isFinished = false;

    /** What names the text in a message. */
    QString name() const { return context + QLatin1String(": ") + source; }
};

inline Text readMessage(QXmlStreamReader &xml, const QString &context)
{
    Text text;
    text.context = context;
    text.isNumerus = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            if (!text.isNumerus)
                text.forms.append(xml.readElementText());
            while (text.isNumerus && xml.readNextStartElement())
                text.forms.append(xml.readElementText());
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

/** The texts of translations/fishbone_<language>.ts. */
inline QVector<Text> readTexts(const QString &language)
{
    QFile file(
        TestSupport::sourceFile(QStringLiteral("translations/fishbone_%1.ts")).arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QVector<Text> texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            texts.append(readMessage(xml, context));
    }
    return xml.hasError() ? QVector<Text>() : texts;
}

/** What English readers see, by the names of the texts: some of the library are in Chinese. */
inline QHash<QString, QString> englishTexts()
{
    QHash<QString, QString> texts;
    const QVector<Text> all = readTexts(QStringLiteral("en"));
    for (const Text &text : all)
        texts.insert(text.name(), text.forms.constLast());
    return texts;
}

/** The languages that translations/ has files of. */
inline QStringList translatedLanguages()
{
    const QDir folder(TestSupport::sourceFile(QStringLiteral("translations")));
    QStringList names = folder.entryList({QStringLiteral("fishbone_*.ts")});
    for (QString &name : names)
        name = name.mid(9).chopped(3);
    return names;
}

} // namespace Translations
