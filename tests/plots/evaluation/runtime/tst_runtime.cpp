#include "plots/evaluation/runtime/runtime.h"
#include "tests/support/rows.h"

#include <random>

namespace {

using List = QVector<double>;

List noise(int count, unsigned seed)
{
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> distribution(0.0, 100.0);
    List samples;
    for (int i = 0; i < count; ++i)
        samples.append(distribution(generator));
    return samples;
}

RuntimeCache::Shots pointersTo(std::vector<List> &lists)
{
    RuntimeCache::Shots shots;
    for (const List &list : lists)
        shots.push_back(&list);
    return shots;
}

std::vector<ShotRuntime> computedFromScratch(const std::vector<List> &lists, const RuntimeCriteria &criteria)
{
    std::vector<ShotRuntime> results;
    for (const List &list : lists)
        results.push_back(shotRuntime(list, criteria));
    return results;
}

} // namespace

class RuntimeTest : public QObject
{
    Q_OBJECT

private slots:
    void findsStartAndStop_data()
    {
        columns<List, double, double, double, int, int>("samples", "offset", "startThreshold", "stopThreshold", "start",
                                                        "stop");

        const List dip{10, 9, 4, 3, 2, 4, 9, 10};
        row("no samples", List{}, 0.0, 5.0, 5.0, -1, -1);
        row("dip", dip, 0.0, 5.0, 5.0, 2, 5);
        row("strictly below", dip, 0.0, 4.0, 4.0, 3, 4);
        row("offset lifts the signal", dip, 2.0, 5.0, 5.0, 4, 4);
        row("start found, stop not", dip, 0.0, 3.5, 2.0, 3, -1);
        row("always below", dip, 0.0, 11.0, 11.0, 0, 7);
        row("two dips", List{9, 1, 9, 9, 1, 9}, 0.0, 5.0, 5.0, 1, 4);
        row("one sample", List{1}, 0.0, 5.0, 5.0, 0, 0);
    }

    void findsStartAndStop()
    {
        QFETCH(List, samples);
        QFETCH(double, offset);
        QFETCH(double, startThreshold);
        QFETCH(double, stopThreshold);
        QFETCH(int, start);
        QFETCH(int, stop);
        const ShotRuntime result = shotRuntime(samples, {offset, startThreshold, stopThreshold});
        QCOMPARE(result.startIndex, start);
        QCOMPARE(result.stopIndex, stop);
        QCOMPARE(result.count, samples.size());
        QCOMPARE(result.startTime(), start / 10.0);
        QCOMPARE(result.duration(), (stop - start) / 10.0);
        QCOMPARE(result.stopTime(), stop / 10.0);
        QCOMPARE(result.hasDuration(), start != stop);
    }

    void extensionEqualsNewSearch()
    {
        for (unsigned seed = 0; seed < 50; ++seed) {
            const List all = noise(40, seed);
            const RuntimeCriteria criteria{0.0, 5.0 + seed % 7, 4.0 + seed % 5};
            ShotRuntime grown;
            for (int count = 0; count <= all.size(); count += 1 + int(seed % 4)) {
                const List part = all.mid(0, count);
                grown = extendedRuntime(grown, part, criteria);
                QVERIFY(grown == shotRuntime(part, criteria));
            }
        }
    }

    void cacheScansOnlyWhatChanged()
    {
        std::vector<List> lists{noise(30, 1), noise(20, 2), noise(10, 3)};
        RuntimeCriteria criteria{0.0, 10.0, 10.0};
        RuntimeCache cache;
        const auto refresh = [&](quint64 revision) { return cache.refresh(pointersTo(lists), criteria, revision); };
        QCOMPARE(refresh(1).scanned, 3);
        QCOMPARE(refresh(1).scanned, 0);

        lists[2] += noise(5, 4); // the recording grows
        const RuntimeCache::Work grown = refresh(1);
        QCOMPARE(grown.scanned, 0);
        QCOMPARE(grown.extended, 1);
        QVERIFY(cache.results() == computedFromScratch(lists, criteria));

        lists[0].append(-1.0); // an older shot grows
        QCOMPARE(refresh(1).scanned, 1);
        QCOMPARE(cache.results()[0].stopIndex, 30);

        lists[1][7] = -1.0; // an older shot is overwritten
        QCOMPARE(refresh(1).scanned, 1);
        QVERIFY(cache.results() == computedFromScratch(lists, criteria));

        criteria.offset = 5.0;
        QCOMPARE(refresh(1).scanned, 3);
        QVERIFY(cache.results() == computedFromScratch(lists, criteria));
        QCOMPARE(refresh(1).scanned, 0);
    }

    void cacheKeepsResultsOfRemainingShots()
    {
        std::vector<List> lists;
        for (unsigned i = 0; i < 10; ++i)
            lists.push_back(noise(25, i));
        const RuntimeCriteria criteria{0.0, 20.0, 30.0};
        RuntimeCache cache;
        QCOMPARE(cache.refresh(pointersTo(lists), criteria, 1).scanned, 10);

        lists.erase(lists.begin() + 3, lists.begin() + 6);
        lists.erase(lists.begin());
        QCOMPARE(cache.refresh(pointersTo(lists), criteria, 2).scanned, 1); // of the last one no copy is kept
        QVERIFY(cache.results() == computedFromScratch(lists, criteria));

        lists.push_back(List{});
        QCOMPARE(cache.refresh(pointersTo(lists), criteria, 3).scanned, 2); // the new one, and the last before it
        QVERIFY(cache.results() == computedFromScratch(lists, criteria));
    }

    // A removed list's memory may be used again by one of the same length.
    void cacheSeesListsThatWereReplaced()
    {
        const RuntimeCriteria criteria{0.0, 50.0, 50.0};
        RuntimeCache cache;
        std::vector<List> lists(3);
        for (quint64 revision = 1; revision < 100; ++revision) {
            for (List &list : lists) {
                list = List();
                list = noise(16, unsigned(revision) * 10 + unsigned(&list - lists.data()));
            }
            (void)cache.refresh(pointersTo(lists), criteria, revision); // the amount of work does not matter here
            QVERIFY(cache.results() == computedFromScratch(lists, criteria));
        }
    }

    void cacheDoesNotKeepRemovedSamples()
    {
        std::vector<List> lists{noise(10, 1), noise(10, 2), noise(10, 3)};
        RuntimeCache cache;
        (void)cache.refresh(pointersTo(lists), {}, 1); // only its side effect is wanted
        const List removed = lists[0];
        lists.erase(lists.begin());
        QVERIFY(!removed.isDetached());
        cache.releaseRemoved(pointersTo(lists));
        QVERIFY(removed.isDetached());  // nothing else holds it any longer
        QVERIFY(lists[1].isDetached()); // the newest is not copied when it grows
    }
};

QTEST_APPLESS_MAIN(RuntimeTest)
#include "tst_runtime.moc"
