// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QFrame>
#include <QGraphicsView>
#include <QIcon>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QTimer>
#include <QXmlStreamReader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

/** The plugin as Qt Designer meets it: a file that is loaded. */
class TestFishEditorPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldDescribeTheEditor();
    void shouldPutAWellFormedWidgetIntoAForm();
    void shouldShowTheTemplate();
    void shouldSaveNothingByItself();
    void shouldOfferZoomAndRotation();

private:
    std::unique_ptr<QWidget> create();

    QPluginLoader m_loader{QStringLiteral(FISHBONE_PLUGIN)};
    QDesignerCustomWidgetInterface *m_plugin = nullptr; // belongs to the loader
};

std::unique_ptr<QWidget> TestFishEditorPlugin::create()
{
    return std::unique_ptr<QWidget>(m_plugin->createWidget(nullptr));
}

void TestFishEditorPlugin::initTestCase()
{
    m_plugin = qobject_cast<QDesignerCustomWidgetInterface *>(m_loader.instance());
    QVERIFY2(m_plugin, qPrintable(m_loader.errorString()));
}

void TestFishEditorPlugin::shouldDescribeTheEditor()
{
    QCOMPARE(m_plugin->name(), QStringLiteral("FishEditor"));
    QCOMPARE(m_plugin->includeFile(), QStringLiteral("fishbone/editor/fisheditor.h"));
    QVERIFY(!m_plugin->group().isEmpty());
    QVERIFY(!m_plugin->toolTip().isEmpty());
    QVERIFY(!m_plugin->isContainer());
    QVERIFY(!m_plugin->icon().pixmap(16).isNull());
}

void TestFishEditorPlugin::shouldPutAWellFormedWidgetIntoAForm()
{
    QXmlStreamReader xml(m_plugin->domXml());
    QString className;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement &&
            xml.name() == QLatin1String("widget"))
            className = xml.attributes().value(QLatin1String("class")).toString();
    }
    QCOMPARE(xml.error(), QXmlStreamReader::NoError);
    QCOMPARE(className, QString::fromLatin1(create()->metaObject()->className()));
}

void TestFishEditorPlugin::shouldShowTheTemplate()
{
    const std::unique_ptr<QWidget> editor = create();
    const auto *const view = editor->findChild<QGraphicsView *>();
    QVERIFY(view);
    // The head with its six main bones, at least.
    QVERIFY(view->scene()->items().size() > 7);
}

void TestFishEditorPlugin::shouldSaveNothingByItself()
{
    const std::unique_ptr<QWidget> editor = create();
    for (const QTimer *timer : editor->findChildren<QTimer *>())
        QVERIFY(!timer->isActive());
}

void TestFishEditorPlugin::shouldOfferZoomAndRotation()
{
    const std::unique_ptr<QWidget> editor = create();
    const auto *const view = editor->findChild<QGraphicsView *>();
    const QMetaObject &type = *editor->metaObject();
    for (const char *name : {"zoom", "rotation"}) {
        const QMetaProperty property = type.property(type.indexOfProperty(name));
        QVERIFY2(property.isDesignable(), name);
        QVERIFY2(property.hasNotifySignal(), name);
    }
    QCOMPARE(editor->property("zoom").toInt(), 250);
    QCOMPARE(editor->property("rotation").toInt(), 0);

    QVERIFY(editor->setProperty("zoom", 300));
    QCOMPARE(view->transform().m11(), 2.0);
    QVERIFY(editor->setProperty("zoom", 250));
    QVERIFY(editor->setProperty("rotation", 90));
    QCOMPARE(view->transform().m12(), 1.0);
    QCOMPARE(editor->property("rotation").toInt(), 90);
}

QTEST_MAIN(TestFishEditorPlugin)
#include "tst_fisheditorplugin.moc"
