#include "model/model.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace {

QByteArray pngOf(const QImage &image)
{
    QByteArray png;
    QBuffer buffer(&png);
    return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG") ? png : "failed"_ba;
}

} // namespace

// What opening makes of each field of a project file: given, missing or of another type.
Q_DECLARE_METATYPE(PictureState)

class TestOpenedFields : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }

    void readsOddFields_data()
    {
        columns<QByteArray, QString, QString>("text", "logged", "found");
        const auto row = [](const QByteArray &text, const char *logged, const char *found) {
            ::row(qPrintable(QString::fromUtf8(text + logged)), text, QString::fromUtf8(logged),
                  QString::fromUtf8(found));
        };
        // found: clock, firmware version, closing force, marker 4, phase 5, offset 1, maximum 1, name 5, shots
        const char *defaults = "100 8.0 0 40 WZ öffnen 0 100000 Sensor 5 00000";
        row("{}", " jSensor1 is no array!", defaults);
        row("{}", " jCorrections is no array!", defaults);
        row(R"({"sensor 2":{},"sensor 3":"[]"})", " jSensor3 is no array!", defaults);
        row(R"({"sensor 2":[[1,2],[]],"sensor 4":[[]]})", "jSensor1Array.size()=2",
            "100 8.0 0 40 WZ öffnen 0 100000 Sensor 5 02010");
        row(R"({"clock":99.5,"swVersion":"x","paramClosingForce":12,"markers":[1,2,3,4.6]})", " index=3 pos=5",
            "100 x 12 5 WZ öffnen 0 100000 Sensor 5 00000");
        row(R"({"clock":"20","swVersion":7,"paramClosingForce":null,"corrections":5})", " jCorrections is no array!",
            defaults);
        row(R"({"clock":1e300,"paramClosingForce":1e300,"markers":[0,0,0,1e300]})", " pos=2147483647",
            "3600000 8.0 2147483647 2147483647 WZ öffnen 0 100000 Sensor 5 00000");
        row(R"({"clock":-3,"phases":["a","b","c","d","e","f"]})", " ERROR: index out of range! (5",
            "1 8.0 0 40 e 0 100000 Sensor 5 00000");
        row(R"({"clock":1e999,"corrections":[1.5,2,3,4,5,6,7]})", " offset[0]=1.5",
            "1 8.0 0 40 WZ öffnen 1.5 100000 Sensor 5 00000");
        row(R"({"sensor maxValues":[7.25],"sensor minValues":[-3]})", " sensor maximum(0)=7.25",
            "100 8.0 0 40 WZ öffnen 0 7.25 Sensor 5 00000");
        row(R"({"sensorName 5":"N","sensorName 1":3})", " numSensors(0)=5", "100 8.0 0 40 WZ öffnen 0 100000 N 00000");
        row(R"({"measurement":[[1]],"sensor 6":[[1]],"sensor1":[[1]]})", " numSensorGroups=1", defaults);
    }

    void readsOddFields()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, logged);
        writeFile(path("odd.vnt"), text);
        Model model{QString()};
        model.setVerticalMarkerAbsolute(3, 40);
        const LogCapture log;
        QVERIFY(model.open(path("odd.vnt")));
        QVERIFY(log.contains(logged));
        const SensorGroup &group = model.sensorDescription().sensorGroup(0);
        QString state = "%1 %2 %3 %4 %5 %6 %7 %8 "_s.arg(
            QString::number(model.clock()), model.firmwareVersion(), QString::number(model.projectData().closingForce),
            QString::number(model.verticalMarker(3)), model.phaseName(4), QString::number(model.offset(0)),
            QString::number(group.sensorMaximum(0)), group.sensorName(4));
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            state += QString::number(model.numChannels(sensor));
        QTEST(state, "found");
    }

    void readsOldVersions_data()
    {
        columns<QByteArray, QString, bool>("version", "logged", "isOld");
        row("current", R"("7")"_ba, " file version=7", false);
        row("older", R"("5")"_ba, " file version=5", true);
        row("not an integer", R"("7.5")"_ba, " file version=7.5", true);
        row("number", "7"_ba, " file version=6.0", true);
    }

    void readsOldVersions()
    {
        QFETCH(QByteArray, version);
        QFETCH(QString, logged);
        QFETCH(bool, isOld);
        writeFile(path("version.vnt"), "{\"fileVersion\":" + version + "}");
        const LogCapture log;
        Model model{QString()};
        SensorDescription description;
        description.setNumSensorGroups(3);
        model.setSensorDescription(description);
        QVERIFY(model.open(path("version.vnt")));
        QVERIFY(log.contains(logged));
        QCOMPARE(log.contains(" file version < 7 -> using defaults (1 group, 5 sensors, distance)"_s), isOld);
        QCOMPARE(model.sensorDescription().numSensorGroups(), 1);
        QCOMPARE(model.sensorDescription().sensorGroup(0).numSensors(), 5);
        QCOMPARE(model.sensorDescription().sensorGroup(0).sensorType(4), isOld ? "Distance"_s : QString());
    }

    void readsOsziRanges_data()
    {
        columns<QByteArray, QString, double, bool>("viewData", "logged", "firstMaximum", "absolute");
        const QString undefined = "jViewData is undefined (key 'ViewData' not found)!"_s;
        const QString empty = "jViewDataObj is empty!  (Qt bug? doesn't matter!)"_s;
        const QString limits = "osziMin and osziMax not given or equal -> use sensor min/max values:"_s;
        row("missing", R"("x":0)"_ba, undefined, 8.0, false);
        row("text", R"("ViewData":"x")"_ba, "jViewData is no object!", 8.0, false);
        row("empty", R"("ViewData":{})"_ba, empty, 8.0, false);
        row("no ranges", R"("ViewData":{"checkBoxMarkerAbsolute":true})"_ba, "jOsziMinArray is no array!", 8.0, true);
        row("first alone",
            QByteArray(
                R"("ViewData":{"osziMinValues":[0,0,0,0,0],"osziMaxValues":[10,0,0,0,0,9],"checkBoxMarkerAbsolute":1})"),
            limits, 10.0, false);
    }

    void readsOsziRanges()
    {
        QFETCH(QByteArray, viewData);
        QFETCH(QString, logged);
        writeFile(path("view.vnt"),
                  "{" + viewData + R"(,"sensor minValues":[0,-2,0,0,0],"sensor maxValues":[8,9,0,0,0]})");
        const LogCapture log;
        Model model{QString()};
        QVERIFY(model.open(path("view.vnt")));
        QVERIFY(log.contains(logged));
        QTEST(model.osziMaximum(0), "firstMaximum");
        QCOMPARE(model.osziMinimum(1), -2.0);
        QCOMPARE(model.osziMaximum(1), 9.0);
        QTEST(model.markersAbsolute(), "absolute");
    }

    void readsImages_data()
    {
        columns<QByteArray, QSize, PictureState>("json", "size", "state");
        const QByteArray png = pngOf(QImage(3, 9, QImage::Format_ARGB32));
        // 65535 by 65535 pixels, and the beginning of a row.
        const QByteArray huge = QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ffff0000ffff080200000039674e07"
                                                    "0000001149444154789c63601805a360140c77000003e80001b3a6d346");
        row("image", QByteArray('"' + png.toBase64() + '"'), QSize(3, 9), PictureState::Whole);
        row("gigabytes", QByteArray('"' + huge.toBase64() + '"'), QSize(), PictureState::TooLarge);
        row("cut", QByteArray('"' + png.left(60).toBase64() + '"'), QSize(), PictureState::Undecodable);
        row("empty", R"("")"_ba, QSize(), PictureState::None);
        row("other type", R"({"a": [1,2]})"_ba, QSize(), PictureState::Undecodable);
        row("other format", R"("R0lGODlhAQABAAAAACw=")"_ba, QSize(), PictureState::Undecodable);
        row("not Base64", R"("\u00e4%&")"_ba, QSize(), PictureState::Undecodable);
    }

    /// What is not shown is written as it was read, until there is another picture or none.

    void readsImages()
    {
        QFETCH(QByteArray, json);
        QFETCH(QSize, size);
        QFETCH(PictureState, state);
        writeFile(path("image.vnt"), "{\"projectImage4\":" + json + "}");
        const LogCapture log;
        Model model(path("image.vnt"));
        QCOMPARE(model.currentFile(), path("image.vnt"));
        QCOMPARE(model.image(4).size(), size.isValid() ? size : QSize(0, 0));
        QVERIFY(model.images().state(4) == state);
        QVERIFY(model.save(path("again.vnt")) && model.open(path("again.vnt")) && model.save(path("again.vnt")));
        QVERIFY(contentOf(path("again.vnt")).contains(json));
        QVERIFY(model.open(path("image.vnt")));
        const QPixmap stand = model.images().pixmaps()[4];
        model.setImage(4, QPixmap(2, 2));
        QVERIFY(model.images().state(4) == PictureState::Whole && model.save(path("other.vnt")));
        QVERIFY(json == R"("")" || !contentOf(path("other.vnt")).contains(json));
        model.setImage(4, stand); // as undoing that does
        QVERIFY(model.images().state(4) == state && model.save(path("back.vnt")));
        QVERIFY(state == PictureState::Whole || contentOf(path("back.vnt")).contains(json));
        model.setImage(4, QPixmap());
        QVERIFY(model.images().state(4) == PictureState::None && model.save(path("none.vnt")));
        QVERIFY(contentOf(path("none.vnt")).contains(R"("projectImage4": "")"));
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestOpenedFields)
#include "tst_openedfields.moc"
