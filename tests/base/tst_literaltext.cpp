// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/base/literaltext.h>
#include <tests/program/testprogram.h>

#include <QtTest>

/** Names that look like markup. */
class TestLiteralText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLeavePlainTextAlone();
    void shouldShowMarkupLetterByLetter();
};

void TestLiteralText::shouldLeavePlainTextAlone()
{
    for (const char *plain : {"", "late.json", "a < b & c", "two\nlines"})
        QCOMPARE(literalText(QString::fromLatin1(plain)), QString::fromLatin1(plain));
}

void TestLiteralText::shouldShowMarkupLetterByLetter()
{
    const QString name = QStringLiteral("<b>late</b>\n<img src='x'>&amp;");
    QTextDocument shown;
    shown.setHtml(literalText(name));
    QCOMPARE(shown.toPlainText(), name);
}

FISHBONE_TEST(TestLiteralText)
#include "tst_literaltext.moc"
