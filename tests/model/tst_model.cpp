#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/shots.h"

#include <limits>

class TestModel : public QObject
{
    Q_OBJECT

private slots:
    void clearResetsTheProjectOnly()
    {
        Model model{QString()};
        addShot(model, {1.0});
        model.setOffset(1, 2.0);
        model.setColor(2, Qt::white);
        model.setPhaseName(0, "x"_s);
        model.setComment("x"_s);
        model.setClock(7);
        model.setImage(4, QPixmap(2, 2));
        model.setDeviceDescription({"h"_s, "f"_s, 0, {}});
        model.setSensorDescription(SensorDescription());
        model.setProjectModifiedFlag(true);
        model.setFileList({"x"_s});
        model.setVerticalMarkerAbsolute(3, 40);
        model.setOsziMaximum(2, 12.5);
        model.setConnected(true);
        model.clear();
        QCOMPARE(model.numChannels(0), 0);
        QCOMPARE(model.offset(1), 0.0);
        QCOMPARE(model.color(2), QColor(Qt::darkBlue));
        QCOMPARE(model.phaseName(0), "WZ schließen"_s);
        QCOMPARE(model.comment() + model.hardwareVersion() + model.firmwareVersion(), "8.0"_s);
        QCOMPARE(model.clock(), 100);
        QVERIFY(model.image(4).isNull() && model.fileList().isEmpty() && !model.isProjectModified());
        QCOMPARE(model.sensorDescription().sensorGroup(0).numSensors(), 5);
        QCOMPARE(model.sensorDescription().sensorGroup(0).sensorMinimum(4), -100000.0);
        QVERIFY(model.verticalMarker(3) == 40 && model.osziMaximum(2) == 12.5 && model.isConnected());
    }

    void ignoresBadIndices()
    {
        Model model{QString()};
        addShot(model, {1.0}, 100.0);
        const quint64 revision = model.structureRevision();
        QSignalSpy projectChanged(&model, &Model::projectChanged);
        const LogCapture log;
        QCOMPARE(model.numChannels(-1), 0);
        QCOMPARE(model.latestValue(1, 0) + model.latestValue(0, 5), 0.0);
        QCOMPARE(model.minimumValue(0, 1) + model.maximumValue(0, -1) + model.maximumValue(7, 0), 0.0);
        QCOMPARE(model.phaseName(5) + model.phaseName(-1), QString());
        QCOMPARE(model.appendMeasurement(5), -1);
        QVERIFY(!model.deleteChannel(1));
        model.setOffset(5, 1);
        model.setColor(255, Qt::red);
        model.setSensorName(5, {});
        model.setSensorMinimum(1, 0, 1);
        model.setSensorMaximum(0, -2, 1);
        model.setPhaseName(5, {});
        model.setVerticalMarkerAbsolute(4, 1);
        model.setVerticalMarkerRelative(-1, 1);
        model.setImage(5, QPixmap(1, 1));
        model.setTimestamp(1, QDateTime());
        QVERIFY(log.count(" ERROR: index out of range! ("_s) >= 12);
        QCOMPARE(projectChanged.count(), 0);
        QCOMPARE(model.structureRevision(), revision);
        QVERIFY(!model.measurement(5, 0) && !model.measurement(0, 1) && !model.measurement(-1, -1));
        QVERIFY(!model.appendSample(0, 1, 1.0) && !model.appendSample(5, 0, 1.0) && !model.appendSample(0, -1, 1.0));
    }

    void knowsValuesOfMeasurements()
    {
        Model model{QString()};
        QCOMPARE(model.latestValue(0, 0), 0.0);
        addShot(model, {3.0, -7.5, 2.0}, 100.0);
        QCOMPARE(model.latestValue(0, 1), 102.0);
        QCOMPARE(model.minimumValue(1, 0), 92.5);
        QCOMPARE(model.maximumValue(1, 0), 103.0);
        addShot(model, {}, 100.0);
        QCOMPARE(model.latestValue(0, 1), 0.0);
        QCOMPARE(model.minimumValue(1, 1), 9999999.0);
        QCOMPARE(model.maximumValue(1, 1), -9999999.0);
    }

    void takesOnlyFiniteNumbers()
    {
        Model model{QString()};
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double inf = std::numeric_limits<double>::infinity();
        addShot(model, {nan, inf, -inf}, 100.0);
        QCOMPARE(*model.measurement(0, 0), (SampleList{0.0, 0.0, 0.0}));
        model.setOffset(0, nan);
        model.setSensorMinimum(0, 0, inf);
        model.setOsziMinimum(0, nan);
        QCOMPARE(model.offset(0) + model.sensorDescription().sensorGroup(0).sensorMinimum(0) + model.osziMinimum(0),
                 0.0);
    }

    void samplesStayWhereTheyAre()
    {
        Model model{QString()};
        addShot(model, {1.0}, 100.0);
        const SampleList *first = model.measurement(2, 0);
        for (int i = 0; i < 200; ++i)
            addShot(model, {2.0, 3.0}, 100.0);
        QVERIFY(model.deleteChannel(50));
        model.endRecording();
        QCOMPARE(model.measurement(2, 0), first);
        QCOMPARE(first->constFirst(), 201.0);
    }

    void keepsRemovedSamplesUntilReceiversLetGo()
    {
        Model model{QString()};
        addShot(model, {1.0, 2.0}, 100.0);
        addShot(model, {3.0}, 100.0);
        const SampleList *shown = model.measurement(0, 0);
        int read = 0;
        connect(&model, &Model::dataChanged, &model, [&] {
            if (shown)
                read += shown->size(); // a receiver may look at its curves once more before it lets go
            shown = nullptr;
        });
        model.blockSignals(true);
        const quint64 revision = model.structureRevision();
        QVERIFY(model.deleteChannel(0));
        model.clearData();
        model.emitDataChanged();
        QVERIFY(model.structureRevision() != revision);
        QCOMPARE(shown->size(), 2); // signals are blocked: nobody has been told
        model.blockSignals(false);
        model.emitDataChanged();
        QCOMPARE(read, 2);
    }

    void deletesFromAllChannels()
    {
        Model model{QString()};
        for (int i = 0; i < 3; ++i)
            addShot(model, {double(i)}, 100.0);
        QCOMPARE(model.appendMeasurement(3), 3); // one channel is ahead of the others
        const QDateTime stamp(QDate(2021, 7, 29), QTime(14, 30, 5));
        model.setTimestamp(2, stamp);
        QVERIFY(!model.timestamp(0).isValid());
        QVERIFY(model.deleteChannel(1));
        QCOMPARE(model.numChannels(0), 2);
        QCOMPARE(model.numChannels(3), 3);
        QCOMPARE(model.measurement(4, 1)->constFirst(), 402.0);
        QCOMPARE(model.timestamp(1), stamp);
        QVERIFY(model.deleteChannel(2));
        QCOMPARE(model.numChannels(0), 2);
        QVERIFY(!model.deleteChannel(2) && !model.deleteChannel(-1));
    }
};

QTEST_MAIN(TestModel)
#include "tst_model.moc"
