// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/exportdialogparts.h>
#include <tests/program/testprogram.h>

using namespace ExportDialogParts;
using DialogAnswers::press;
using TestSupport::ModalDriver;

/** The dialog that asks for the file and the size of a picture. */
class TestExportDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { forget(); }
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
};

void TestExportDialog::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_exportdialog"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
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

FISHBONE_TEST(TestExportDialog)
#include "tst_exportdialog.moc"
