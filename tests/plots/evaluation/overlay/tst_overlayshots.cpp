#include "plots/evaluation/overlay/overlayshots.h"
#include "tests/support/rows.h"

#include <cmath>

namespace {

using Samples = QVector<double>;

std::vector<OverlayShots::Source> sourcesOf(const std::vector<std::pair<quint64, const Samples *>> &lists)
{
    std::vector<OverlayShots::Source> sources;
    for (const auto &[id, samples] : lists)
        sources.push_back({id, samples});
    return sources;
}

AlignmentRule rising(double threshold, double offset = 0.0)
{
    return {AlignBy::Rising, offset, 0, threshold};
}

} // namespace

Q_DECLARE_METATYPE(AlignmentRule)

class TestOverlayShots : public QObject
{
    Q_OBJECT

private slots:
    void alignedSamples_data()
    {
        columns<Samples, AlignmentRule, int>("samples", "rule", "aligned");

        const AlignmentRule start;
        const Samples wave{0, 4, 8, 4, 0, 4, 8};
        row("start", wave, start, 0);
        row("marker", wave, AlignmentRule{AlignBy::Marker, 0.0, 6, 0.0}, 6);
        row("marker behind the end", wave, AlignmentRule{AlignBy::Marker, 0.0, 7, 0.0}, -1);
        row("rising, just reached", wave, rising(4), 1);
        row("rising, never", wave, rising(8.1), -1);
        row("rising, begins there", Samples{5, 6, 4, 5}, rising(5), 3);
        row("rising with offset", wave, rising(9, 2), 2);
        row("falling, just reached", wave, AlignmentRule{AlignBy::Falling, 0.0, 0, 0.0}, 4);
        row("falling, begins there", Samples{0, 1, 1}, AlignmentRule{AlignBy::Falling, 0.0, 0, 0.0}, -1);
        row("one sample", Samples{3}, rising(3), -1);
    }

    void alignedSamples()
    {
        QFETCH(Samples, samples);
        QFETCH(AlignmentRule, rule);
        QFETCH(int, aligned);
        QCOMPARE(alignedSample(samples, rule), aligned);
        for (int first = 0; first < samples.size(); ++first) { // the same in two pieces, as samples arrive
            const int before = alignedSample(samples.mid(0, first), rule);
            QCOMPARE(before >= 0 ? before : alignedSample(samples, rule, std::max(1, first)), aligned);
        }
    }

    void deviations_data()
    {
        // largest: negative means none
        columns<Samples, int, double, double>("samples", "aligned", "lift", "largest");

        // The reference is 1, 2, 4, 8 with its sample 1 aligned.
        row("higher and lower", Samples{2, 2, 1, 9}, 1, 0.0, 3.0);
        row("lifted", Samples{2, 2, 1, 9}, 1, 2.0, 3.0);
        row("longer at both ends", Samples{90, 90, 1, 2, 4, 8, 90}, 3, 0.0, 0.0);
        row("shorter", Samples{2, 3}, 0, 0.0, 1.0);
        row("meets its last sample", Samples{50, 60}, -2, 0.0, 42.0);
        row("does not meet it", Samples{50, 60}, -3, 0.0, -1.0);
        row("empty", Samples(), 0, 0.0, -1.0);
    }

    void deviations()
    {
        QFETCH(Samples, samples);
        QFETCH(int, aligned);
        QFETCH(double, lift);
        QFETCH(double, largest);
        const Samples reference{1, 2, 4, 8};
        const Deviation found = deviation({&samples, aligned, lift}, {&reference, 1, 0.0}, {});
        QCOMPARE(found.largest.value_or(-1.0), largest);
    }

    void deviationGoesOnWhereItEnded()
    {
        const Samples reference{1, 2, 4, 8, 16, 32};
        Samples samples{0, 3, 4};
        const AlignedCurve to{&reference, 1, 0.0};
        Deviation found = deviation({&samples, 2, 0.0}, to, {});
        QCOMPARE(*found.largest, 2.0);
        samples[2] = 900.0; // was read already
        samples << 4.5 << 8.25;
        found = deviation({&samples, 2, 0.0}, to, found);
        QCOMPARE(*found.largest, 2.0);
        samples << 36.0;
        QCOMPARE(*deviation({&samples, 2, 0.0}, to, found).largest, 20.0);
    }

    void meanAndSigma_data()
    {
        columns<QVector<Samples>, QVector<int>, Samples, Samples>("curves", "shifts", "means", "sigmas");

        using Curves = QVector<Samples>;
        using Shifts = QVector<int>;
        row("none", Curves(), Shifts(), Samples(), Samples());
        // 2 4 4 4 5 5 7 9 has the mean 5 and the sigma 2.
        row("eight of one sample", Curves{{2}, {4}, {4}, {4}, {5}, {5}, {7}, {9}}, Shifts{0, 0, 0, 0, 0, 0, 0, 0},
            Samples{5}, Samples{2});
        row("different lengths", Curves{{1, 10, 7}, {3}, {5, 20}, {}}, Shifts{0, 0, 0, 0}, Samples{3, 15, 7},
            Samples{std::sqrt(8.0 / 3.0), 5, 0});
        row("shifted, with a gap", Curves{{1, 2}, {6}, {8}}, Shifts{0, 3, 3}, Samples{1, 2, 0, 7}, Samples{0, 0, 0, 1});
    }

    void meanAndSigma()
    {
        QFETCH(QVector<Samples>, curves);
        QFETCH(QVector<int>, shifts);
        QFETCH(Samples, means);
        QFETCH(Samples, sigmas);
        MeanBand band;
        for (int i = 0; i < curves.size(); ++i)
            band.add(curves[i], 0, shifts[i], 0.0);
        QCOMPARE(int(band.points().size()), means.size());
        for (int i = 0; i < means.size(); ++i) {
            QCOMPARE(band.points()[size_t(i)].mean, means[i]);
            QCOMPARE(band.points()[size_t(i)].sigma(), sigmas[i]);
        }
    }

    /// With a plain sum of squares no digit of this small scatter would be left.
    void meanKeepsDigits()
    {
        MeanBand band;
        band.add({1e9 - 1.0}, 0, 0, 0.0);
        band.add({1e9 + 1.0}, 0, 0, 0.0);
        QCOMPARE(band.points().front().mean, 1e9);
        QCOMPARE(band.points().front().sigma(), 1.0);
    }

    void placesShotsOverEachOther()
    {
        const Samples early{0, 9, 9};
        const Samples late{0, 0, 0, 0, 9};
        const Samples never{0, 0};
        OverlayShots overlay;
        overlay.refresh(sourcesOf({{1, &early}, {2, &late}, {3, &never}}), rising(5), 0);
        overlay.place({true, true, true});
        QCOMPARE(overlay.alignedIndex(), 4);
        QCOMPARE(overlay.shots()[0]->shift, 3);
        QCOMPARE(overlay.shots()[1]->shift, 0);
        QVERIFY(!overlay.shots()[2]->isPlaced());
        const auto &points = overlay.meanOf({true, true, true}).points();
        QCOMPARE(int(points.size()), 6);
        QCOMPARE(points[4].count, 2);
        QCOMPARE(points[4].mean, 9.0);
        QCOMPARE(points[5].count, 1);

        overlay.place({true, false, true}); // a shot that is not drawn needs no room
        QCOMPARE(overlay.alignedIndex(), 1);
        QCOMPARE(int(overlay.meanOf({true, false, true}).points().size()), 3);
    }

    void looksAtNewSamplesOnly()
    {
        const Samples first(1000, 1.0);
        Samples last(500, 2.0);
        const auto lists = sourcesOf({{1, &first}, {2, &last}});
        OverlayShots overlay;
        const auto refresh = [&](const AlignmentRule &rule) {
            overlay.refresh(lists, rule, 1);
            overlay.place({true, true});
            (void)overlay.meanOf({true, true}); // checked below
            return overlay.takeWork();
        };
        QCOMPARE(refresh({}), qint64(1000 + 500));
        QCOMPARE(refresh({}), qint64(0));
        last.append(5.0);
        QCOMPARE(refresh({}), qint64(1));
        QCOMPARE(*overlay.shots()[1]->apart.largest, 4.0);
        QCOMPARE(overlay.shots()[1]->highest, 5.0);
        QCOMPARE(overlay.meanOf({true, true}).points()[500].mean, 3.0);
        QVERIFY(overlay.shots()[1]->samples.constData() != last.constData());
        QCOMPARE(overlay.shots()[0]->samples.constData(), first.constData());
        QCOMPARE(refresh(rising(3)), qint64(999 + 500 + 501)); // searched; the first shot is no longer in the mean
        QCOMPARE(int(overlay.meanOf({true, true}).points().size()), 501);
    }

    void survivesRemovedLists()
    {
        auto removed = std::make_unique<Samples>(Samples{1, 2, 3});
        const Samples kept{4, 5, 6};
        const Samples added{7, 8};
        OverlayShots overlay;
        overlay.refresh(sourcesOf({{1, removed.get()}, {2, &kept}}), {}, 1);
        const OverlayShot *second = overlay.shots()[1].get();
        removed.reset();
        QCOMPARE(overlay.shots()[0]->samples, Samples({1, 2, 3})); // unchanged until the next refresh
        overlay.refresh(sourcesOf({{2, &kept}, {3, &added}}), {}, 1);
        QCOMPARE(overlay.shots()[0].get(), second);
        QCOMPARE(overlay.shots()[0]->samples.constData(),
                 kept.constData()); // shared as soon as it can no longer grow
        QCOMPARE(overlay.shots()[1]->samples, added);
        QVERIFY(!overlay.reference());
        QVERIFY(!overlay.shots()[0]->apart.largest);
        overlay.refresh({}, {}, 0);
        overlay.place({});
        QVERIFY(overlay.meanOf({}).points().empty());
    }

    void ranksAgainstTheReference()
    {
        const Samples a{0, 0, 10, 10};
        const Samples b{0, 10, 12, 10};
        const Samples c{0, 0, 0, 3};
        OverlayShots overlay;
        const auto largest = [&](size_t shot) { return overlay.shots()[shot]->apart.largest.value_or(-1.0); };
        const auto lists = sourcesOf({{1, &a}, {2, &b}, {3, &c}});
        overlay.refresh(lists, {}, 1);
        QCOMPARE(largest(0), 0.0);
        QCOMPARE(largest(1), 10.0);
        QCOMPARE(largest(2), 10.0);
        overlay.refresh(lists, rising(5), 1);
        QCOMPARE(largest(1), 2.0);
        QCOMPARE(largest(2), -1.0);
        overlay.refresh(lists, rising(5), 2);
        QCOMPARE(largest(0), 2.0);
        QCOMPARE(largest(1), 0.0);
        overlay.refresh(lists, rising(3), 3); // now the reference has moved as well
        QCOMPARE(largest(0), 7.0);
        overlay.refresh(lists, {}, 3);
        QCOMPARE(largest(0), 10.0);
    }
};

QTEST_APPLESS_MAIN(TestOverlayShots)

#include "tst_overlayshots.moc"
