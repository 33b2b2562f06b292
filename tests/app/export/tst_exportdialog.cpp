// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>
#include <tests/app/picturesubject.h>

#include <tests/program/testprogram.h>
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

using DialogAnswers::press;
using TestSupport::ModalDriver;

namespace {

template <typename Field>
Field *field(const QDialog &dialog, const char *name)
{
    return dialog.findChild<Field *>(QLatin1String(name));
}

/// Makes the next keys go to \a field.
void focus(QWidget *field)
{
    field->window()->activateWindow();
    AppFixture::settle();
    field->setFocus();
}

/// Enters \a text as a user does, and leaves the field.
void type(QAbstractSpinBox *box, const char *text)
{
    focus(box);
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(text));
    QTest::keyClick(box, Qt::Key_Tab);
}

void chooseEntry(QComboBox *box, int row)
{
    focus(box);
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < row; ++i)
        QTest::keyClick(box, Qt::Key_Down);
}

/// The titles of the bones that the window shows.
QStringList visibleTitles(const AppFixture &app)
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

/// What a picture of the classic drawing covers: all but the buttons.
QRectF coveredBy(const AppFixture &app)
{
    QRectF covered;
    const QList<QGraphicsItem *> items = app.window.editor()->scene()->items();
    for (const QGraphicsItem *item : items) {
        if (item->isVisible() && item->type() != ExpandItem::Type)
            covered |= item->sceneBoundingRect();
    }
    return covered;
}

QString resultOf(const QDialog &dialog)
{
    return field<QLabel>(dialog, "result")->text();
}

} // namespace

class TestExportDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldExportAPicture();
    void shouldLeaveTheSelectionOutOfAPicture();
    void shouldRefuseAPictureOfUnknownFormat();
    void shouldAskBeforeAPictureIsReplaced();
    void shouldSayThatAPictureCannotBeWritten();
    void shouldLetTheSizesFollowEachOther();
    void shouldMakeAPictureOfTheSizeThatWasEntered();
    void shouldShowTheSizeOnPaper();
    void shouldRefuseWhatIsTooLarge();
    void shouldOfferTheLevels();
    void shouldMeasureTheChosenLevels();
    void shouldOfferTheCanvasWhereItSuits();
    void shouldRememberWhatWasChosen();
    void shouldForgetWhatWasCancelled();
    void shouldBeUsedByKeyboard();
    void shouldExportOtherLevelsThanAreShown_data();
    void shouldExportOtherLevelsThanAreShown();
    void shouldExportASubjectShownAsDiagram();
    void shouldExportADarkDrawing();
    void shouldExportWhatWasShownWhenItBegan();
    void shouldLeaveOutTheButtons();
    void shouldChooseHowItIsDrawn();
    void shouldOfferTheClassicLookNothingElse();
    void shouldBeginWithWhatIsShown();
    void shouldShowAPreview();
    void shouldMakeThePictureForAPage();
    void shouldMakeAPdfOfAPage();
    void shouldMakeAPageForTheBrowser();
    void shouldWriteASmallSvg();
    void shouldOfferAScaleThatFits();
    void shouldExportTheClearLookAsShown();
};

void TestExportDialog::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_exportdialog"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestExportDialog::init()
{
    QDir(RecoveryStore::folder()).removeRecursively();
    QSettings().remove(QStringLiteral("export"));
    DiagramView classic; // whose drawing there is to compare with
    classic.look = DiagramLook::Classic;
    classic.becomeUsual();
}

void TestExportDialog::shouldExportAPicture()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("a.png"));
    const ModalDriver<ExportDialog> driver([path](ExportDialog &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("file"))->setText(path);
        dialog.findChild<QDoubleSpinBox *>()->setValue(2);
        field<QComboBox>(dialog, "background")->setCurrentIndex(1);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QImage picture(path);
    QVERIFY(!picture.isNull());
    QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
    const QRectF drawing = coveredBy(app);
    QCOMPARE(picture.width(), int(std::ceil((drawing.width() + 40) * 2)));
    QCOMPARE(picture.text(QStringLiteral("Title")), QStringLiteral("Late"));
}

void TestExportDialog::shouldLeaveTheSelectionOutOfAPicture()
{
    AppFixture app;
    const auto exported = [&app](const QString &name) {
        const QString path = app.path(name);
        const ModalDriver<ExportDialog> driver([path](ExportDialog &dialog) {
            dialog.findChild<QLineEdit *>(QStringLiteral("file"))->setText(path);
            dialog.accept();
        });
        app.trigger("export");
        return driver.isDone() ? QImage(path) : QImage();
    };
    const QImage plain = exported(QStringLiteral("a.png"));
    QVERIFY(!plain.isNull());
    app.select("People");
    QCOMPARE(exported(QStringLiteral("b.png")), plain);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
}

void TestExportDialog::shouldRefuseAPictureOfUnknownFormat()
{
    ExportDialog dialog(QStringLiteral("a.bmp"), pictureSubject());
    dialog.show();
    const ModalDriver<QMessageBox> driver(press(QMessageBox::Ok));
    dialog.accept();
    QVERIFY(driver.isDone());
    QVERIFY(dialog.isVisible());
}

void TestExportDialog::shouldAskBeforeAPictureIsReplaced()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.png"));
    AppFixture::writeFile(path, "old");
    ExportDialog dialog(path, pictureSubject());
    dialog.show();
    {
        const ModalDriver<QMessageBox> driver(press(QMessageBox::No));
        dialog.accept();
        QVERIFY(driver.isDone());
    }
    QVERIFY(dialog.isVisible());
    const ModalDriver<QMessageBox> driver(press(QMessageBox::Yes));
    dialog.accept();
    QVERIFY(driver.isDone());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(AppFixture::contentOf(path), QByteArray("old")); // the caller writes
}

void TestExportDialog::shouldSayThatAPictureCannotBeWritten()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("a.png"));
    QString warned;
    std::unique_ptr<ModalDriver<ExportDialog>> again;
    std::unique_ptr<ModalDriver<QMessageBox>> warning;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(app.path(QStringLiteral("missing/a.png")));
        dialog.accept();
        warning = std::make_unique<ModalDriver<QMessageBox>>([&](QMessageBox &box) {
            warned = box.text();
            box.accept();
            // The dialog comes back, so that another file can be chosen.
            again = std::make_unique<ModalDriver<ExportDialog>>([&path](ExportDialog &second) {
                field<QLineEdit>(second, "file")->setText(path);
                second.accept();
            });
        });
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QVERIFY(warning && warning->isDone());
    QVERIFY2(warned.contains(QLatin1String("missing/a.png")), qPrintable(warned));
    QVERIFY(again && again->isDone());
    QVERIFY(!QImage(path).isNull());
}

void TestExportDialog::shouldLetTheSizesFollowEachOther()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject());
    dialog.show();
    auto *const scale = field<QDoubleSpinBox>(dialog, "scale");
    auto *const width = field<QSpinBox>(dialog, "width");
    auto *const height = field<QSpinBox>(dialog, "height");
    QCOMPARE(scale->value(), 1.0);
    QCOMPARE(QSize(width->value(), height->value()), QSize(500, 200));

    type(scale, "2.5");
    QCOMPARE(QSize(width->value(), height->value()), QSize(1250, 500));
    QCOMPARE(dialog.options().scale, 2.5);
    QVERIFY(!dialog.options().size.isValid());

    type(width, "750");
    QCOMPARE(scale->value(), 1.5);
    QCOMPARE(height->value(), 300);
    QCOMPARE(dialog.options().size, QSize(750, 300));

    type(height, "1000");
    QCOMPARE(scale->value(), 5.0);
    QCOMPARE(width->value(), 2500);
    QCOMPARE(dialog.options().size, QSize(2500, 1000));
    QVERIFY2(resultOf(dialog).contains(QLatin1String("500")), qPrintable(resultOf(dialog)));
}

void TestExportDialog::shouldMakeAPictureOfTheSizeThatWasEntered()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("a.png"));
    QSize shown;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        type(field<QSpinBox>(dialog, "width"), "1234");
        shown = QSize(1234, field<QSpinBox>(dialog, "height")->value());
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QRectF drawing = coveredBy(app);
    QCOMPARE(shown.height(),
             int(std::ceil((drawing.height() + 40) * 1234 / (drawing.width() + 40))));
    QCOMPARE(QImage(path).size(), shown);
}

void TestExportDialog::shouldShowTheSizeOnPaper()
{
    ExportDialog dialog(QStringLiteral("a.pdf"), pictureSubject());
    dialog.show();
    type(field<QDoubleSpinBox>(dialog, "scale"), "2");
    const double millimetres = 25.4 / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    const QString size = QStringLiteral("%1 × %2 mm")
                             .arg(1000 * millimetres, 0, 'f', 0)
                             .arg(400 * millimetres, 0, 'f', 0);
    QVERIFY2(resultOf(dialog).contains(size), qPrintable(resultOf(dialog)));
    field<QLineEdit>(dialog, "file")->setText(QStringLiteral("a.svg"));
    QVERIFY2(!resultOf(dialog).contains(QLatin1String("mm")), qPrintable(resultOf(dialog)));
    field<QLineEdit>(dialog, "file")->setText(QStringLiteral("a"));
    QCOMPARE(resultOf(dialog), QString());
}

void TestExportDialog::shouldRefuseWhatIsTooLarge()
{
    const QTemporaryDir folder;
    ExportDialog dialog(folder.filePath(QStringLiteral("a.png")), pictureSubject());
    dialog.show();
    type(field<QSpinBox>(dialog, "width"), "100000");
    QVERIFY2(resultOf(dialog).contains(QLatin1String("32767")), qPrintable(resultOf(dialog)));
    QString shown;
    const ModalDriver<QMessageBox> driver([&shown](QMessageBox &box) {
        shown = box.text();
        box.accept();
    });
    dialog.accept();
    QVERIFY(driver.isDone());
    QVERIFY2(shown.contains(QLatin1String("32767")), qPrintable(shown));
    QVERIFY(dialog.isVisible());
}

void TestExportDialog::shouldOfferTheLevels()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject());
    dialog.show();
    auto *const expansion = field<QComboBox>(dialog, "expansion");
    auto *const levels = field<QSpinBox>(dialog, "levels");
    QVERIFY(!dialog.levels());
    QVERIFY(!levels->isEnabled());
    chooseEntry(expansion, 1);
    QCOMPARE(dialog.levels().value_or(99), Expansion::allLevels);
    QVERIFY(!levels->isEnabled());
    chooseEntry(expansion, 2);
    QVERIFY(levels->isEnabled());
    QCOMPARE(dialog.levels().value_or(99), 1);
    QCOMPARE(levels->minimum(), 0);
    QCOMPARE(levels->maximum(), 3);
}

void TestExportDialog::shouldMeasureTheChosenLevels()
{
    int measured = 0;
    ExportDialog::Subject counted = pictureSubject();
    counted.extent = [&measured](const PictureWish &wish) {
        ++measured;
        return pictureSubject().extent(wish);
    };
    ExportDialog dialog(QStringLiteral("a.png"), counted);
    dialog.show();
    QCOMPARE(measured, 1);
    type(field<QSpinBox>(dialog, "height"), "400");
    auto *const width = field<QSpinBox>(dialog, "width");
    QCOMPARE(width->value(), 1000);
    chooseEntry(field<QComboBox>(dialog, "expansion"), 1); // passes the levels below
    QTRY_COMPARE(width->value(), 2000);
    QCOMPARE(field<QSpinBox>(dialog, "height")->value(), 400);
    QCOMPARE(measured, 2);
}

void TestExportDialog::shouldOfferTheCanvasWhereItSuits()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject());
    dialog.show();
    auto *const light = field<QCheckBox>(dialog, "light");
    auto *const background = field<QComboBox>(dialog, "background");
    QVERIFY(light->isChecked());
    QVERIFY(dialog.isLight());
    QCOMPARE(background->count(), 2);
    QCOMPARE(dialog.options().background, QColor(Qt::white));
    QTest::keyClick(light, Qt::Key_Space);
    QVERIFY(!dialog.isLight());
    QCOMPARE(background->count(), 3);
    QCOMPARE(dialog.options().background, QColor(1, 2, 3));
    chooseEntry(background, 2);
    QCOMPARE(dialog.options().background, QColor(Qt::transparent));
    QTest::keyClick(light, Qt::Key_Space);
    QCOMPARE(dialog.options().background, QColor(Qt::transparent));
}

void TestExportDialog::shouldRememberWhatWasChosen()
{
    const QTemporaryDir folder;
    {
        ExportDialog dialog(folder.filePath(QStringLiteral("a.png")), pictureSubject());
        dialog.show();
        type(field<QSpinBox>(dialog, "width"), "640");
        chooseEntry(field<QComboBox>(dialog, "expansion"), 2);
        type(field<QSpinBox>(dialog, "levels"), "2");
        QTest::keyClick(field<QCheckBox>(dialog, "light"), Qt::Key_Space);
        chooseEntry(field<QComboBox>(dialog, "background"), 2);
        dialog.accept();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }
    const ExportDialog dialog(folder.filePath(QStringLiteral("b.png")), pictureSubject());
    QCOMPARE(dialog.options().size, QSize(640, 256));
    QCOMPARE(dialog.levels().value_or(99), 2);
    QVERIFY(!dialog.isLight());
    QCOMPARE(dialog.options().background, QColor(Qt::transparent));
}

void TestExportDialog::shouldForgetWhatWasCancelled()
{
    {
        ExportDialog dialog(QStringLiteral("a.png"), pictureSubject());
        dialog.show();
        type(field<QDoubleSpinBox>(dialog, "scale"), "3");
        dialog.reject();
    }
    QCOMPARE(ExportDialog(QStringLiteral("a.png"), pictureSubject()).options().scale, 1.0);
}

void TestExportDialog::shouldBeUsedByKeyboard()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject());
    dialog.show();
    const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
    QStringList keys;
    for (const char *name : {"file", "look", "page", "palette", "head", "scale", "width", "height",
                             "expansion", "background"}) {
        auto *const widget = field<QWidget>(dialog, name);
        const auto label = std::find_if(labels.cbegin(), labels.cend(),
                                        [widget](QLabel *each) { return each->buddy() == widget; });
        QVERIFY2(label != labels.cend(), name);
        keys.append(QKeySequence::mnemonic((*label)->text()).toString());
        QVERIFY2(widget->focusPolicy() & Qt::TabFocus, name);
    }
    keys.append(QKeySequence::mnemonic(field<QCheckBox>(dialog, "light")->text()).toString());
    for (const QPushButton *button : dialog.findChildren<QPushButton *>())
        keys.append(QKeySequence::mnemonic(button->text()).toString());
    keys.removeAll(QString());
    QVERIFY(keys.size() >= 8);
    QCOMPARE(keys.removeDuplicates(), 0);
    QVERIFY(!field<QSpinBox>(dialog, "levels")->accessibleName().isEmpty());
}

void TestExportDialog::shouldExportOtherLevelsThanAreShown_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QByteArray>("levels");
    QTest::addColumn<QString>("titles");
    QTest::newRow("as shown") << 0 << QByteArray() << "Late,Machines,Material,People,Rust";
    QTest::newRow("all") << 1 << QByteArray()
                         << "Illness,Late,Machines,Material,People,Rust,Too few,Too new";
    QTest::newRow("main bones") << 2 << QByteArray("0") << "Late,Machines,Material,People";
    QTest::newRow("one more") << 2 << QByteArray("1")
                              << "Late,Machines,Material,People,Rust,Too few,Too new";
}

void TestExportDialog::shouldExportOtherLevelsThanAreShown()
{
    QFETCH(int, entry);
    QFETCH(QByteArray, levels);
    QFETCH(QString, titles);
    AppFixture app;
    app.select("Material");
    app.trigger("expand");
    const QStringList before = visibleTitles(app);
    const QRectF drawing = PictureExport::visibleRect(*app.window.editor()->scene());
    const QByteArray file = AppFixture::contentOf(app.path());
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "expansion"), entry);
        if (!levels.isEmpty())
            type(field<QSpinBox>(dialog, "levels"), levels.constData());
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());

    const QString svg = QString::fromUtf8(AppFixture::contentOf(path));
    QStringList drawn;
    for (const char *title :
         {"Illness", "Late", "Machines", "Material", "People", "Rust", "Too few", "Too new"}) {
        if (svg.contains(QStringLiteral(">%1<").arg(QLatin1String(title))))
            drawn.append(QLatin1String(title));
    }
    QCOMPARE(drawn.join(QLatin1Char(',')), titles);

    QCOMPARE(visibleTitles(app), before);
    QCOMPARE(PictureExport::visibleRect(*app.window.editor()->scene()), drawing);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Material")));
    QVERIFY(!app.document()->modified());
    QCOMPARE(app.window.editor()->undoStack()->currentIndex(), -1);
    QCOMPARE(AppFixture::contentOf(app.path()), file);
}

void TestExportDialog::shouldExportASubjectShownAsDiagram()
{
    AppFixture app;
    app.select("People");
    app.trigger("asDiagram");
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "expansion"), 1);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QByteArray svg = AppFixture::contentOf(path);
    QVERIFY(svg.contains(">Illness<"));
    QVERIFY(!svg.contains(">Rust<"));
    QVERIFY(svg.contains("<title>People</title>"));
}

void TestExportDialog::shouldExportADarkDrawing()
{
    AppFixture app;
    QPalette dark = app.window.palette();
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    app.window.setPalette(dark);
    AppFixture::settle();
    const auto exported = [&app](const QString &name, bool light) {
        const QString path = app.path(name);
        const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
            field<QLineEdit>(dialog, "file")->setText(path);
            field<QCheckBox>(dialog, "light")->setChecked(light);
            dialog.accept();
        });
        app.trigger("export");
        return driver.isDone() ? QImage(path) : QImage();
    };
    const QImage onPaper = exported(QStringLiteral("a.png"), true);
    QCOMPARE(onPaper.pixelColor(0, 0), QColor(Qt::white));
    const QImage asShown = exported(QStringLiteral("b.png"), false);
    QVERIFY(asShown.pixelColor(0, 0).lightness() < 128);
    QVERIFY(asShown != onPaper);
    QVERIFY(app.window.updatesEnabled());
}

void TestExportDialog::shouldExportWhatWasShownWhenItBegan()
{
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other"})");
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        app.window.open({other}); // as a load does that ends now
        AppFixture::settle();
        field<QLineEdit>(dialog, "file")->setText(path);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), QStringLiteral("Other"));
    const QByteArray svg = AppFixture::contentOf(path);
    QVERIFY(svg.contains("<title>Late</title>"));
    QVERIFY(svg.contains(">People<"));
}

void TestExportDialog::shouldLeaveOutTheButtons()
{
    AppFixture app; // People is contracted and has a button
    const QString path = app.path(QStringLiteral("a.png"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    FishScene *const scene = app.window.editor()->scene();
    const auto drawn = [scene, &app] {
        PictureOptions options;
        options.title = app.document()->treeItem()->childAtIndex(0)->title();
        QByteArray png;
        PictureExport::render(*scene, PictureExport::Format::Png, options, png);
        return QImage::fromData(png);
    };
    const QImage picture(path);
    int buttons = 0;
    const QList<QGraphicsItem *> items = scene->items();
    for (QGraphicsItem *item : items) {
        if (item->type() == ExpandItem::Type && item->isVisible()) {
            ++buttons;
            item->hide();
        }
    }
    QVERIFY(buttons > 0);
    QCOMPARE(picture, drawn());
}

void TestExportDialog::shouldChooseHowItIsDrawn()
{
    const QTemporaryDir folder;
    const DiagramLook::Options usual;
    {
        ExportDialog dialog(folder.filePath(QStringLiteral("a.png")),
                            pictureSubject(DiagramLook::Clear));
        dialog.show();
        QCOMPARE(dialog.wish().view.look, DiagramLook::Clear);
        QVERIFY(dialog.wish().view.options.hasLegend); // on for pictures
        QVERIFY(!dialog.page());
        chooseEntry(field<QComboBox>(dialog, "page"), 2);
        chooseEntry(field<QComboBox>(dialog, "palette"), 1);
        chooseEntry(field<QComboBox>(dialog, "head"), 1);
        focus(field<QCheckBox>(dialog, "legend"));
        QTest::keyClick(field<QCheckBox>(dialog, "legend"), Qt::Key_Space);
        const DiagramView view = dialog.wish().view;
        QCOMPARE(view.page, QStringLiteral("A4"));
        QCOMPARE(dialog.page()->size, QSizeF(297, 210));
        QCOMPARE(view.options.palette, DiagramLook::GrayColors);
        QVERIFY(view.options.isHeadLeft);
        QVERIFY(!view.options.hasLegend);
        QVERIFY(!field<QSpinBox>(dialog, "width")->isEnabled());
        QVERIFY2(resultOf(dialog).contains(QLatin1String("2,245")), qPrintable(resultOf(dialog)));
        dialog.accept();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }
    // Of these the page and the legend are the user's, the others the document's.
    const ExportDialog dialog(QStringLiteral("a.png"), pictureSubject(DiagramLook::Clear));
    QCOMPARE(dialog.wish().view.page, QStringLiteral("A4"));
    QVERIFY(!dialog.wish().view.options.hasLegend);
    QCOMPARE(dialog.wish().view.options.palette, usual.palette);
}

void TestExportDialog::shouldOfferTheClassicLookNothingElse()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject(DiagramLook::Clear));
    dialog.show();
    chooseEntry(field<QComboBox>(dialog, "page"), 1);
    const char *const names[] = {"page", "palette", "head", "legend"};
    for (const char *name : names)
        QVERIFY2(field<QWidget>(dialog, name)->isEnabled(), name);
    QVERIFY(!field<QWidget>(dialog, "light")->isEnabled()); // the palette says it
    chooseEntry(field<QComboBox>(dialog, "look"), 1);
    QCOMPARE(dialog.wish().view.look, DiagramLook::Classic);
    for (const char *name : names)
        QVERIFY2(!field<QWidget>(dialog, name)->isEnabled(), name);
    QVERIFY(field<QWidget>(dialog, "light")->isEnabled());
    QVERIFY(field<QSpinBox>(dialog, "width")->isEnabled());
    QVERIFY(!dialog.page());
}

void TestExportDialog::shouldBeginWithWhatIsShown()
{
    AppFixture app;
    app.trigger("lookClear");
    app.trigger("headLeft");
    app.trigger("paletteGray");
    DiagramView view;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        view = dialog.wish().view;
        dialog.reject();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QCOMPARE(view.look, DiagramLook::Clear);
    QVERIFY(view.options.isHeadLeft);
    QCOMPARE(view.options.palette, DiagramLook::GrayColors);
}

void TestExportDialog::shouldShowAPreview()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject(DiagramLook::Clear));
    dialog.show();
    const auto shown = [&dialog] {
        return field<QLabel>(dialog, "preview")->pixmap(Qt::ReturnByValue).toImage();
    };
    const QImage atFirst = shown();
    QCOMPARE(atFirst.pixelColor(atFirst.rect().center()), QColor(Qt::red));
    chooseEntry(field<QComboBox>(dialog, "page"), 2);
    QTRY_VERIFY(shown() != atFirst);
    const QImage onPage = shown();
    const int x = onPage.width() / 2;
    const int below = onPage.height() / 2 + int(onPage.width() * 210 / 297 / 2) - 3;
    QCOMPARE(onPage.pixelColor(x, below), QColor(Qt::white));
    QVERIFY(onPage.pixelColor(x, below + 6) != QColor(Qt::white));
    chooseEntry(field<QComboBox>(dialog, "palette"), 2);
    QTRY_COMPARE(shown().pixelColor(x, below), QColor(0x1e, 0x21, 0x26));
}

void TestExportDialog::shouldMakeThePictureForAPage()
{
    AppFixture app;
    app.trigger("lookClear");
    const QString path = app.path(QStringLiteral("a.png"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "page"), 1);
        chooseEntry(field<QComboBox>(dialog, "palette"), 2);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QCOMPARE(QImage(path).size(), QSize(1920, 1080));
    QVERIFY(QImage(path).pixelColor(0, 0).lightness() < 60); // the colours for dark paper
}

void TestExportDialog::shouldMakeAPdfOfAPage()
{
    AppFixture app;
    app.trigger("lookClear");
    const QString path = app.path(QStringLiteral("a.pdf"));
    QString result;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "page"), 2);
        result = resultOf(dialog);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QVERIFY2(result.contains(QStringLiteral("297 × 210 mm")), qPrintable(result));
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {path});
    QVERIFY(info.waitForFinished());
    QVERIFY(info.readAllStandardOutput().contains("(A4)"));
}

void TestExportDialog::shouldMakeAPageForTheBrowser()
{
    AppFixture app;
    app.trigger("lookClear");
    const QString path = app.path(QStringLiteral("a.html"));
    QString refused;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "look"), 1);
        {
            const ModalDriver<QMessageBox> warning([&](QMessageBox &box) {
                refused = box.text();
                box.accept();
            });
            dialog.accept();
        }
        chooseEntry(field<QComboBox>(dialog, "look"), 0);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QVERIFY2(refused.contains(QLatin1String("clear look")), qPrintable(refused));
    const QByteArray page = AppFixture::contentOf(path);
    QVERIFY(page.contains("<html"));
    QVERIFY(page.contains("Machines"));
}

void TestExportDialog::shouldWriteASmallSvg()
{
    AppFixture app;
    app.trigger("lookClear");
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        chooseEntry(field<QComboBox>(dialog, "expansion"), 1);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QByteArray svg = AppFixture::contentOf(path);
    QVERIFY2(svg.size() < 8 * 500 + 2000, qPrintable(QString::number(svg.size())));
    for (const char *title : {"Illness", "Late", "Machines", "Too new"})
        QVERIFY2(svg.contains(title), title);
}

void TestExportDialog::shouldOfferAScaleThatFits()
{
    ExportDialog dialog(QStringLiteral("a.png"), pictureSubject());
    dialog.show();
    auto *const button = field<QPushButton>(dialog, "fit");
    QVERIFY(!button->isVisible());
    type(field<QDoubleSpinBox>(dialog, "scale"), "100"); // 50,000 pixels wide, 20,000 high
    QVERIFY(button->isVisible());
    QVERIFY2(button->text().contains(QLatin1String("51.809")), qPrintable(button->text()));
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!button->isVisible());
    QCOMPARE(dialog.options().scale, 51.809);
    QVERIFY(PictureExport::check(PictureExport::Format::Png,
                                 PictureExport::sizeOf(QRectF(0, 0, 460, 160), dialog.options())));

    // And where the picture is refused.
    type(field<QSpinBox>(dialog, "width"), "40000");
    QString offered;
    const ModalDriver<QMessageBox> driver([&offered](QMessageBox &box) {
        offered = box.text();
        box.button(QMessageBox::Yes)->click();
    });
    dialog.accept();
    QVERIFY(driver.isDone());
    QVERIFY2(offered.contains(QLatin1String("51.809")), qPrintable(offered));
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.options().scale, 51.809);
}

void TestExportDialog::shouldExportTheClearLookAsShown()
{
    AppFixture app;
    app.trigger("lookClear");
    app.select("Material");
    app.trigger("expand");
    const QString path = app.path(QStringLiteral("a.svg"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        field<QLineEdit>(dialog, "file")->setText(path);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    const QByteArray svg = AppFixture::contentOf(path);
    QVERIFY(svg.contains(">Rust<"));
    QVERIFY(!svg.contains(">Illness<"));
    QVERIFY(svg.contains(">+3<")); // of People
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Material")));
}

FISHBONE_TEST(TestExportDialog)
#include "tst_exportdialog.moc"
