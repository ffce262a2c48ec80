#include "bench.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/project/tabproject.h"
#include "view/sensors/sensortreemodel.h"
#include "view/sensors/tabsensors.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTreeView>

#include <array>

using Edit = std::function<void(Bench &)>;
Q_DECLARE_METATYPE(Edit)

namespace {

QByteArray sensorLine(const char *maximum = "9")
{
    return "<sensorDescription numGroups=\"1\"><group groupPos=\"0\" name=\"G\" numSensors=\"5\">"
           + QByteArray("<sensor name=\"S\" type=\"T\" min=\"0\" max=\"9\" unit=\"bar\"/>").repeated(4)
           + "<sensor name=\"S\" type=\"T\" min=\"0\" max=\"" + maximum
           + "\" unit=\"bar\"/></group></sensorDescription>";
}

Edit typed(const char *field, const char *keys)
{
    return [field, keys](Bench &bench) {
        auto *widget = bench.view.findChild<QWidget *>(QLatin1String(field));
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(widget, QLatin1String(keys));
        QTest::keyClick(widget, Qt::Key_Return);
    };
}

Edit clicked(const char *button)
{
    return [button](Bench &bench) { bench.view.findChild<QAbstractButton *>(QLatin1String(button))->click(); };
}

Edit said(const QByteArray &line)
{
    return [line](Bench &bench) { bench.say(line); };
}

QByteArray encoded(QSize size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

/// As a camera held upright stores a picture: unturned, with a mark that says so.
QByteArray turned(QByteArray jpeg)
{
    const QByteArray orientation = QByteArray::fromHex("ffe10022457869660000"
                                                       "4d4d002a00000008"
                                                       "0001"
                                                       "01120003000000010006"
                                                       "000000000000");
    return jpeg.insert(2, orientation);
}

/// A picture of a few bytes that claims to have this size.
QByteArray swollen(quint32 width, quint32 height)
{
    QByteArray png = encoded(QSize(1, 1), "PNG");
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    quint32 check = 0xffffffff;
    for (const char byte : png.mid(12, 17)) {
        check ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            check = check & 1 ? (check >> 1) ^ 0xedb88320 : check >> 1;
    }
    qToBigEndian(~check, png.data() + 29);
    return png;
}

bool drop(QWidget *target, const QMimeData &data)
{
    const QPoint point(5, 5);
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
    return true;
}

} // namespace

class TestEdits : public QObject
{
    Q_OBJECT

private slots:
    void modifyTheProject_data()
    {
        columns<Edit, bool>("edit", "modifies");
        for (const char *text :
             {"lineEditProjectName", "lineEditProjectNumber", "lineEditProjectUser", "lineEditProjectDate",
              "lineEditProjectCustomer", "textEditComment", "lineEditPhase1", "lineEditPhase5"})
            row(text, typed(text, "x"), true);
        for (const char *number : {"spinBoxClosePower", "spinBoxInjectionTime", "spinBoxPressTime", "spinBoxPressure",
                                   "offsetSpinBox3", "markerSpinBox2", "maxSpinBox5", "minSpinBox1"})
            row(number, typed(number, "7"), true);
        for (const char *button : {"buttonToday", "checkBoxMarkerAbsolute", "buttonClearMarkers"})
            row(button, clicked(button), true);
        row("picture", Edit([](Bench &bench) {
                const QImage image(9, 9, QImage::Format_RGB32);
                emit bench.view.tabProject()->imageGiven(1, image);
            }),
            true);
        row("sensor name", Edit([](Bench &bench) { emit bench.view.tabSensors()->sensorNameEdited(2, "x"_s); }), true);
        row("sensor colour", Edit([](Bench &bench) { emit bench.view.tabSensors()->sensorColorEdited(2, Qt::red); }),
            true);
        row("sensor limits", Edit([](Bench &bench) { emit bench.view.tabSensors()->sensorLimitsEdited(0, 2, 1, 2); }),
            true);
        row("calibration", Edit([](Bench &bench) { emit bench.view.calibrate(); }), true);
        row("offsets reset", Edit([](Bench &bench) { bench.view.resetCorrection(); }), true);
        row("recording", said("run=1"), true);
        row("sample", said("0;1;1;1;1;1"), true);
        row("another period", said("t=40"), true);
        row("other sensors", said(sensorLine("8")), true);
        row("the same sensors", said(sensorLine()), false);
        row("the same period", said("t=100"), false);
        row("language", Edit([](Bench &bench) { bench.view.languageChanged(); }), false);
        row("a look around", Edit([](Bench &bench) {
                QTest::keyClick(bench.view.tabOszi()->row(0), Qt::Key_Up);
                QTest::keyClick(bench.view.tabOszi()->row(0), Qt::Key_Plus);
            }),
            false);
    }

    void modifyTheProject()
    {
        QFETCH(Edit, edit);
        QFETCH(bool, modifies);
        Bench bench;
        bench.say(sensorLine());
        QVERIFY2(!bench.model.isProjectModified(), "an empty project to be asked about");
        bench.recordShots(1);
        QVERIFY(bench.model.save(path("edits.vnt")));
        edit(bench);
        QCOMPARE(bench.model.isProjectModified(), modifies);
        emit bench.view.saveProject();
        QVERIFY(!bench.model.isProjectModified());
    }

    void whatIsBeingTypedIsSaved()
    {
        Bench bench;
        bench.prompts->saveNames = {path("typed.vnt")};
        bench.view.show();
        QApplication::setActiveWindow(&bench.view);
        bench.view.tabs()->setCurrentWidget(bench.view.tabOszi());
        auto *offset = bench.view.findChild<QWidget *>("offsetSpinBox2"_s);
        offset->setFocus();
        QTest::keyClick(offset, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(offset, "2,5"_s);
        emit bench.view.saveProject();
        QCOMPARE(Model(path("typed.vnt")).offset(1), 2.5);
        QVERIFY(offset->hasFocus());
        QTest::keyClicks(offset, "7"_s);
        emit bench.view.quit();
        QCOMPARE(bench.prompts->questions.back().text, "Vor dem Beenden Ventaro Projekt speichern?"_s);

        bench.say(sensorLine());
        bench.view.tabs()->setCurrentWidget(bench.view.tabSensors());
        auto *sensors = bench.view.tabSensors()->findChild<QTreeView *>();
        sensors->setFocus();
        sensors->setCurrentIndex(qobject_cast<SensorTreeModel *>(sensors->model())->indexOf(0));
        QTest::keyClick(sensors, Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), "Spritze"_s);
        emit bench.view.saveProject();
        QCOMPARE(Model(path("typed.vnt")).sensorDescription().sensorGroup(0).sensorName(0), "Spritze"_s);
        QVERIFY(sensors->hasFocus());
    }

    void typingGoesOnDuringASave()
    {
        Bench bench;
        bench.prompts->saveNames = {path("typing.vnt")};
        bench.view.show();
        QApplication::setActiveWindow(&bench.view);
        bench.view.tabs()->setCurrentWidget(bench.view.tabProject());
        auto *name = bench.view.findChild<QLineEdit *>("lineEditProjectName"_s);
        name->setFocus();
        QTest::keyClicks(name, "Deckel"_s);
        name->setCursorPosition(3);
        bool first = true;
        bench.model.setYield([&](int) {
            if (std::exchange(first, false))
                QTest::keyClicks(name, "--"_s);
        });
        emit bench.view.saveProject();
        QCOMPARE(name->text(), "Dec--kel"_s);
        QCOMPARE(name->cursorPosition(), 5);
        QCOMPARE(bench.model.projectData().name, "Dec--kel"_s);
        QVERIFY(bench.model.isProjectModified());
    }

    void picturesFromFiles_data()
    {
        columns<QByteArray, QSize, QString>("content", "size", "fault");
        const QByteArray jpeg = encoded(QSize(3200, 1200), "JPG");
        row("large", jpeg, QSize(1600, 600), QString());
        row("small", encoded(QSize(30, 20), "PNG"), QSize(30, 20), QString());
        row("upright", turned(jpeg), QSize(600, 1600), QString());
        row("strip", encoded(QSize(9000, 1), "PNG"), QSize(1600, 1), QString());
        row("swollen", swollen(50000, 50000), QSize(0, 0), "zu groß"_s);
        row("no picture", "%PDF-1.4"_ba, QSize(0, 0), "kein Bild"_s);
        row("drawing", R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>)"_ba, QSize(0, 0),
            "kein Bild"_s);
        row("gone", QByteArray(), QSize(0, 0), "nicht gelesen"_s);
    }

    void picturesFromFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, fault);
        QFile::remove(path("photo.jpg"));
        if (!content.isEmpty())
            write("photo.jpg", content);
        Bench bench;
        bench.prompts->openNames = {path("photo.jpg")};
        clicked("imageButton1")(bench);
        QTEST(bench.model.image(0).size(), "size");
        QCOMPARE(bench.model.isProjectModified(), fault.isEmpty());
        QCOMPARE(bench.prompts->warnings.size(), std::size_t(fault.isEmpty() ? 0 : 1));
        QVERIFY(fault.isEmpty() || bench.prompts->warnings[0].text.contains(fault));
    }

    void picturesAreDroppedAndPasted()
    {
        write("a.png", encoded(QSize(11, 11), "PNG"));
        write("b.JPG", encoded(QSize(12, 12), "JPG"));
        Bench bench;
        auto *first = bench.view.findChild<QWidget *>("imageTile1"_s);
        QMimeData text;
        text.setUrls({QUrl::fromLocalFile(path("a.vnt")), QUrl("http://a.test/a.png"_s)});
        QVERIFY(!drop(first, text));
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(path("a.png")), QUrl::fromLocalFile(path("b.JPG"))});
        QDialog dialog;
        dialog.open();
        QVERIFY(!drop(first, files)); // behind an open dialog
        dialog.close();
        QVERIFY(drop(first, files));
        QTRY_COMPARE(bench.model.image(1).width(), 12);
        QCOMPARE(bench.model.image(0).width(), 11);
        // What lies there is not replaced without a question.
        QImage large(4000, 100, QImage::Format_RGB32);
        QGuiApplication::clipboard()->setImage(large);
        bench.prompts->answers = {QMessageBox::No, QMessageBox::Yes};
        for (const int width : {11, 1600}) {
            const std::size_t asked = bench.prompts->questions.size();
            QTest::keyClick(bench.view.findChild<QWidget *>("imageLabel1"_s), Qt::Key_V, Qt::ControlModifier);
            QTRY_COMPARE(bench.prompts->questions.size(), asked + 1);
            QCOMPARE(bench.model.image(0).width(), width);
        }
    }

    void pictureIsSavedToAFile()
    {
        Bench bench;
        bench.model.setImage(2, QPixmap(7, 5));
        bench.prompts->saveNames = {path("picture"), path("picture"), path("no/picture.png")};
        bench.prompts->answers = {QMessageBox::No}; // the second one would replace the first
        for (int attempt = 0; attempt < 3; ++attempt)
            emit bench.view.tabProject()->imageSaveClicked(2);
        QCOMPARE(QImage(path("picture.png")).size(), QSize(7, 5));
        QVERIFY(bench.prompts->questions.size() == 1 && bench.prompts->warnings.size() == 1);
    }

    void picturesAreDeletedOnConfirmation()
    {
        Bench bench;
        for (int image = 0; image < Model::kNumImages; ++image)
            bench.model.setImage(image, QPixmap(7, 7));
        bench.prompts->answers = {QMessageBox::No, QMessageBox::Yes};
        for (const bool gone : {false, true}) {
            QTest::keyClick(bench.view.findChild<QWidget *>("imageLabel4"_s), Qt::Key_Delete);
            QCOMPARE(bench.model.image(3).isNull(), gone);
            QCOMPARE(bench.model.isProjectModified(), gone);
        }
        QVERIFY(!bench.model.image(2).isNull() && !bench.model.image(4).isNull());
        QVERIFY(bench.view.findChild<QLabel *>("imageLabel4"_s)->accessibleDescription().startsWith("kein"_s));
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    void write(const char *name, const QByteArray &content) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestEdits)
#include "tst_edits.moc"
