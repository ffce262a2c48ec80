#include "tests/support/rows.h"
#include "view/common/measurementrange.h"

class TestMeasurementRange : public QObject
{
    Q_OBJECT

private slots:
    void shown_data()
    {
        columns<QString, int, QVector<int>>("text", "count", "expected");

        row("span and single", "1-3,5", 10, QVector<int>{0, 1, 2, 4});
        row("repeated and out of order", "5,2-3,3", 10, QVector<int>{1, 2, 4});
        row("backwards", "3-1", 10, QVector<int>{});
        row("malformed part is skipped", "1-2-3,4", 10, QVector<int>{3});
        row("from not a number on", "x-2", 10, QVector<int>{0, 1});
        row("beyond the last", "2-2000000000,2000000000", 3, QVector<int>{1, 2});
        row("up to the largest number", "2147483647-2147483647,1-2147483647", 2, QVector<int>{0, 1});
        row("without measurements", "1-3", 0, QVector<int>{});
    }

    void shown()
    {
        QFETCH(QString, text);
        QFETCH(int, count);
        QTEST(shownMeasurements(text, count), "expected");
    }
};

QTEST_APPLESS_MAIN(TestMeasurementRange)
#include "tst_measurementrange.moc"
