#include "view/measurementrange.h"

#include <QtTest>

class TestMeasurementRange : public QObject
{
    Q_OBJECT

private slots:
    void parts_data();
    void parts();
    void shown_data();
    void shown();
};

void TestMeasurementRange::parts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected"); // the numbers of a part joined by '-', parts by '|'

    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("span and single") << "1-3,5"
                                     << "1-3|5";
    QTest::newRow("blanks everywhere") << "  1 -\t3 ,  , 5 "
                                       << "1-3|5";
    QTest::newRow("three pieces") << "1-2-3"
                                  << "1-2-3";
    QTest::newRow("empty pieces do not count") << "-5,1--3"
                                               << "5|1-3";
    QTest::newRow("a blank piece does") << "1- -3"
                                        << "1-0-3";
    QTest::newRow("no number") << "a,2x,1.5"
                               << "0|0|0";
    QTest::newRow("huge span") << "1-2000000000"
                               << "1-2000000000";
}

void TestMeasurementRange::parts()
{
    QFETCH(QString, text);
    QStringList found;
    const QVector<RangePart> parsed = parseMeasurementRange(text);
    for (const RangePart &part : parsed) {
        QStringList numbers;
        for (int number : part.numbers)
            numbers << QString::number(number);
        found << numbers.join(QLatin1Char('-'));
    }
    QTEST(found.join(QLatin1Char('|')), "expected");
}

void TestMeasurementRange::shown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<QVector<int>>("expected");

    QTest::newRow("span and single") << "1-3,5" << 10 << QVector<int>{0, 1, 2, 4};
    QTest::newRow("repeated and out of order") << "5,2-3,3" << 10 << QVector<int>{1, 2, 4};
    QTest::newRow("backwards") << "3-1" << 10 << QVector<int>{};
    QTest::newRow("malformed part is skipped") << "1-2-3,4" << 10 << QVector<int>{3};
    QTest::newRow("from not a number on") << "x-2" << 10 << QVector<int>{0, 1};
    QTest::newRow("beyond the last") << "2-2000000000,2000000000" << 3 << QVector<int>{1, 2};
    QTest::newRow("up to the largest number") << "2147483647-2147483647,1-2147483647" << 2 << QVector<int>{0, 1};
    QTest::newRow("without measurements") << "1-3" << 0 << QVector<int>{};
}

void TestMeasurementRange::shown()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    QTEST(shownMeasurements(text, count), "expected");
}

QTEST_APPLESS_MAIN(TestMeasurementRange)
#include "tst_measurementrange.moc"
