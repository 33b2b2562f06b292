// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QStringList>
#include <QTest>
#include <QTranslator>

namespace TestSupport {

/** The button with exactly that text; null when there is none. */
template <typename Button = QAbstractButton>
Button *buttonWithText(const QWidget &window, const QString &text)
{
    const QList<Button *> buttons = window.findChildren<Button *>();
    for (Button *const button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

/** What a screen reader calls a widget. */
inline QString accessibleName(QWidget *widget)
{
    // On some platforms Qt names a combo box after its current item and leaves the rest to
    // relations.
    if (!widget->accessibleName().isEmpty())
        return widget->accessibleName();
    const QAccessibleInterface *const interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(QAccessible::Name) : QString();
}

/**
 * The classes of the controls, shown and able to take the focus, that have no name for those who
 * do not see what stands beside them.
 */
inline QStringList namelessControls(const QWidget &window)
{
    QStringList classes;
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (QWidget *const widget : widgets) {
        const QWidget *const outer = widget->parentWidget();
        const bool isPart = qobject_cast<const QAbstractSpinBox *>(outer) ||
                            qobject_cast<const QComboBox *>(outer) ||
                            widget->objectName().startsWith(QLatin1String("qt_"));
        const bool isFrame = widget->metaObject() == &QScrollArea::staticMetaObject;
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() || !widget->isVisible() ||
            isPart || isFrame)
            continue;
        if (accessibleName(widget).isEmpty())
            classes.append(QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') +
                           widget->objectName());
    }
    return classes;
}

/**
 * The accessible names of the widgets that Tab visits, from the one that has the focus when the
 * window opens. Shows the window.
 */
inline QStringList tabOrder(QWidget &window)
{
    window.show();
    if (!QTest::qWaitForWindowActive(&window))
        return {};
    QStringList names;
    QWidget *const first = window.focusWidget();
    do {
        names.append(accessibleName(window.focusWidget()));
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget() != first && names.size() < 50);
    return names;
}

/** The texts that stand beside no control, so that they lead nobody to one. */
inline QStringList strayLabels(const QWidget &window)
{
    QStringList texts;
    const auto labels = window.findChildren<QLabel *>();
    for (const QLabel *const label : labels) {
        if (!label->text().isEmpty() && !label->buddy())
            texts.append(label->text());
    }
    return texts;
}

/**
 * Every text of a window that was written by its programmer: title, labels, buttons, groups and
 * the items of combo boxes.
 */
inline QStringList writtenTexts(const QWidget &window)
{
    QStringList texts{window.windowTitle()};
    const auto labels = window.findChildren<QLabel *>();
    for (const QLabel *const label : labels)
        texts.append(label->text());
    const auto buttons = window.findChildren<QAbstractButton *>();
    for (const QAbstractButton *const button : buttons)
        texts.append(button->text());
    const auto groups = window.findChildren<QGroupBox *>();
    for (const QGroupBox *const group : groups)
        texts.append(group->title());
    const auto combos = window.findChildren<QComboBox *>();
    for (const QComboBox *const combo : combos) {
        for (int i = 0; i < combo->count(); ++i)
            texts.append(combo->itemText(i));
    }
    texts.removeAll(QString());
    return texts;
}

/** Puts every text of one translation context in brackets as long as it lives. */
class BracketTranslator : public QTranslator
{
public:
    explicit BracketTranslator(const QByteArray &context)
        : m_context(context)
    {
        QCoreApplication::installTranslator(this);
    }
    ~BracketTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (m_context != context)
            return QString();
        return QLatin1Char('[') + QString::fromUtf8(source) + QLatin1Char(']');
    }

private:
    QByteArray m_context;
};

} // namespace TestSupport
