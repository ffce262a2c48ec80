#include "model/projectdata.h"
#include "model/sensordescription.h"
#include "model/verticalmarkers.h"
#include "tests/support/logcapture.h"

#include <QDebug>
#include <QtTest>

#include <functional>
#include <limits>

Q_DECLARE_METATYPE(VerticalMarkers)

namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

SensorGroup groupOf(int sensors)
{
    SensorGroup group;
    group.setNumSensors(sensors);
    return group;
}

using GroupAccess = std::function<void(SensorGroup &group, int index)>;

} // namespace

Q_DECLARE_METATYPE(GroupAccess)

class TestTypes : public QObject
{
    Q_OBJECT

private slots:
    void newSensorsHaveDefaults();
    void resizesGroups_data();
    void resizesGroups();
    void checksSensorIndices_data();
    void checksSensorIndices();
    void checksGroupIndices();
    void movesMarkers_data();
    void movesMarkers();
    void describesProjectData();
};

void TestTypes::newSensorsHaveDefaults()
{
    const SensorGroup group = groupOf(7);
    const QVector<QColor> colors{Qt::darkRed, Qt::darkGreen, Qt::darkBlue, QColor(255, 140, 0), Qt::darkCyan, {}, {}};
    QCOMPARE(group.numSensors(), 7);
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(group.sensorName(i), QStringLiteral("Sensor X"));
        QCOMPARE(group.sensorMinimum(i), -100000.0);
        QCOMPARE(group.sensorMaximum(i), 100000.0);
        QCOMPARE(group.sensorColor(i).isValid(), i < 5);
        QCOMPARE(group.sensorColor(i).rgba(), colors[i].rgba());
    }
}

void TestTypes::resizesGroups_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("kept"); // entries that keep what was set
    QTest::newRow("same") << 5 << 5;
    QTest::newRow("grown") << 7 << 5;
    QTest::newRow("shrunk loses all") << 2 << 0;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("negative") << -3 << 0;
    QTest::newRow("huge") << kMost << 5;
}

void TestTypes::resizesGroups()
{
    QFETCH(int, count);
    QFETCH(int, kept);
    SensorGroup group = groupOf(5);
    for (int i = 0; i < 5; ++i)
        group.setSensorName(i, QStringLiteral("named"));
    group.setNumSensors(count);
    QCOMPARE(group.numSensors(), qBound(0, count, SensorGroup::kMaxSensors));
    for (int i = 0; i < group.numSensors(); ++i)
        QCOMPARE(group.sensorName(i), i < kept ? QStringLiteral("named") : QStringLiteral("Sensor X"));
}

void TestTypes::checksSensorIndices_data()
{
    QTest::addColumn<GroupAccess>("access");
    QTest::addColumn<QString>("function");
    const auto row = [](const char *function, const GroupAccess &access) {
        QTest::newRow(function) << access << QString::fromLatin1(function);
    };
    row("QString SensorGroup::sensorName(int) const", [](auto &g, int i) { QCOMPARE(g.sensorName(i), QString()); });
    row("QString SensorGroup::sensorType(int) const", [](auto &g, int i) { QCOMPARE(g.sensorType(i), QString()); });
    row("QString SensorGroup::sensorUnit(int) const", [](auto &g, int i) { QCOMPARE(g.sensorUnit(i), QString()); });
    row("double SensorGroup::sensorValue(int) const", [](auto &g, int i) { QCOMPARE(g.sensorValue(i), 0.0); });
    row("double SensorGroup::sensorMinimum(int) const", [](auto &g, int i) { QCOMPARE(g.sensorMinimum(i), 0.0); });
    row("double SensorGroup::sensorMaximum(int) const", [](auto &g, int i) { QCOMPARE(g.sensorMaximum(i), 0.0); });
    row("QColor SensorGroup::sensorColor(int) const", [](auto &g, int i) { QVERIFY(!g.sensorColor(i).isValid()); });
    row("void SensorGroup::setSensorName(int, const QString&)", [](auto &g, int i) { g.setSensorName(i, {}); });
    row("void SensorGroup::setSensorType(int, const QString&)", [](auto &g, int i) { g.setSensorType(i, {}); });
    row("void SensorGroup::setSensorUnit(int, const QString&)", [](auto &g, int i) { g.setSensorUnit(i, {}); });
    row("void SensorGroup::setSensorValue(int, double)", [](auto &g, int i) { g.setSensorValue(i, 1); });
    row("void SensorGroup::setSensorMinimum(int, double)", [](auto &g, int i) { g.setSensorMinimum(i, 1); });
    row("void SensorGroup::setSensorMaximum(int, double)", [](auto &g, int i) { g.setSensorMaximum(i, 1); });
    row("void SensorGroup::SetSensorColor(int, const QColor&)", [](auto &g, int i) { g.SetSensorColor(i, {}); });
}

void TestTypes::checksSensorIndices()
{
    QFETCH(GroupAccess, access);
    QFETCH(QString, function);
    const LogCapture log;
    SensorGroup group = groupOf(5);
    access(group, 5);
    access(group, -1);
    QCOMPARE(log.count(QStringLiteral("ERROR: index >= numSens !!")), 2);
    QCOMPARE(log.count(function), 2);
}

void TestTypes::checksGroupIndices()
{
    const LogCapture log;
    SensorDescription description;
    QCOMPARE(description.sensorGroup(0).numSensors(), 0);
    QVERIFY(!description.modifiableSensorGroup(-1));
    description.setSensorMinimum(0, 0, 1.0);
    description.setSensorMaximum(0, 0, 1.0);
    QCOMPARE(log.count(QStringLiteral("ERROR: i>=numGroups")), 4);

    description.setNumSensorGroups(2);
    description.modifiableSensorGroup(1)->setNumSensors(3);
    description.setSensorMinimum(1, 2, -4.5);
    description.setSensorMaximum(1, 2, 4.5);
    QCOMPARE(description.sensorGroup(1).sensorMinimum(2), -4.5);
    QCOMPARE(description.sensorGroup(1).sensorMaximum(2), 4.5);
    description.setNumSensorGroups(kLeast);
    QCOMPARE(description.numSensorGroups(), 0);
}

void TestTypes::movesMarkers_data()
{
    QTest::addColumn<bool>("absolute");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("pos");
    QTest::addColumn<VerticalMarkers>("expected");
    const auto row = [](const char *name, bool absolute, int index, int pos, const VerticalMarkers &expected) {
        QTest::newRow(name) << absolute << index << pos << expected;
    };
    row("to, raises all behind", true, 1, 500, {100, 500, 500, 500});
    row("to, stops at the first that does not lie below", true, 0, 250, {250, 250, 300, 400});
    row("to, between its neighbours", true, 2, 250, {100, 200, 250, 400});
    row("to, below those before", true, 2, 50, {50, 50, 50, 400});
    row("to, negative", true, 0, -7, {0, 200, 300, 400});
    row("to, largest", true, 3, kMost, {100, 200, 300, kMost});
    row("to, bad index", true, 4, 1, {100, 200, 300, 400});
    row("to, negative index", true, -1, 1, {100, 200, 300, 400});
    row("by, keeps the distances behind", false, 2, 50, {100, 200, 250, 350});
    row("by, first moves all", false, 0, 150, {150, 250, 350, 450});
    row("by, last alone", false, 3, 0, {100, 200, 300, 300});
    row("by, negative distance", false, 1, -10, {100, 100, 200, 300});
    row("by, negative first", false, 0, kLeast, {0, 100, 200, 300});
    row("by, largest", false, 1, kMost, {100, kMost, kMost, kMost});
    row("by, bad index", false, 4, 1, {100, 200, 300, 400});
}

void TestTypes::movesMarkers()
{
    QFETCH(bool, absolute);
    QFETCH(int, index);
    QFETCH(int, pos);
    QFETCH(VerticalMarkers, expected);
    const VerticalMarkers start{100, 200, 300, 400};
    QVERIFY((absolute ? withMarkerAt(start, index, pos) : withMarkerDistance(start, index, pos)) == expected);
}

void TestTypes::describesProjectData()
{
    const ProjectData data{QStringLiteral("N %2"),
                           QStringLiteral("1"),
                           QStringLiteral("U"),
                           QStringLiteral("D"),
                           QStringLiteral("C"),
                           7,
                           1.5,
                           2.25,
                           -3};
    const QString expected = QStringLiteral("[name=N %2 number=1 user=U date=D customer=C closingForce=7 "
                                            "injectionTime=1.5 pressTime=2.25 pressure=-3");
    QString text;
    QDebug(&text) << data;
    QCOMPARE(text.trimmed(), expected);
    ProjectData other = data;
    QVERIFY(other == data);
    other.pressTime = 2.5;
    QVERIFY(other != data);
}

QTEST_GUILESS_MAIN(TestTypes)
#include "tst_types.moc"
