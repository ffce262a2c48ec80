#include "controller/link/answerwatch.h"
#include "controller/link/missinglines.h"
#include "controller/link/ratemeter.h"
#include "controller/link/silencewatch.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QSignalSpy>

class TestLinkWatch : public QObject
{
    Q_OBJECT

private slots:
    /// Silence in a recording, after so many ms, with the real times.
    void silence_data()
    {
        columns<int, int, bool, int, int, bool>("period", "silent", "isRecording", "staleFor", "asked", "lost");
        row("a moment", 5, 1900, true, 0, 0, false);
        row("stale", 5, 2000, true, 2000, 0, false);
        row("asked", 5, 5000, true, 5000, 1, false);
        row("asked once", 5, 14900, true, 14900, 1, false);
        row("lost", 5, 15000, true, 0, 1, true);
        row("slow: three periods", 1000, 2900, true, 0, 0, false);
        row("slow: stale", 1000, 3000, true, 3000, 0, false);
        row("slow: ten periods", 1000, 9900, true, 9900, 0, false);
        row("slow: lost", 1000, 20000, true, 0, 1, true);
        row("not recording", 5, 60000, false, 0, 0, false);
    }

    void silence()
    {
        QFETCH(int, period);
        QFETCH(int, silent);
        QFETCH(bool, isRecording);
        SilenceWatch watch{LinkTimes()};
        QSignalSpy asked(&watch, &SilenceWatch::signOfLifeWanted);
        QSignalSpy lost(&watch, &SilenceWatch::lost);
        for (int time = 0; time < silent; time += 100)
            watch.advance(100, isRecording, period);
        QTEST(watch.staleFor(), "staleFor");
        QTEST(asked.size(), "asked");
        QTEST(!lost.isEmpty(), "lost");
    }

    /// A box that answers but does not sample is not lost; that it does not sample stays to be seen.
    void echoesWithoutSamples()
    {
        SilenceWatch watch{LinkTimes()};
        QSignalSpy lost(&watch, &SilenceWatch::lost);
        connect(&watch, &SilenceWatch::signOfLifeWanted, &watch, [&watch] { watch.noteLine(false); });
        for (int time = 0; time < 60000; time += 250)
            watch.advance(250, true, 5);
        QVERIFY(lost.isEmpty());
        QCOMPARE(watch.staleFor(), 60000);
        watch.noteLine(true);
        QCOMPARE(watch.staleFor(), 0);
    }

    void answers_data()
    {
        columns<QString, int, int, QString>("command", "answer", "after", "unanswered");
        row("start", "run=1\n", int(MessageKind::RunStarted), 1900, QString());
        row("start, too late", "run=1\n", int(MessageKind::RunStarted), 2000, "run=1");
        row("stop, but samples come", "run=0\n", int(MessageKind::Sample), 1900, "run=0");
        row("period", "t=20\n", int(MessageKind::ClockEcho), 1000, QString());
        row("one value", "1\n", int(MessageKind::Sample), 1000, QString());
        row("list", "list\n", int(MessageKind::RunStopped), 1000, "list");
        row("needs no answer", "sensorDescription\n", int(MessageKind::Other), 9000, QString());
        row("typed", "hello\n", int(MessageKind::Other), 9000, QString());
    }

    void answers()
    {
        QFETCH(QString, command);
        QFETCH(int, answer);
        QFETCH(int, after);
        QFETCH(QString, unanswered);
        AnswerWatch watch(2000);
        QSignalSpy missed(&watch, &AnswerWatch::unanswered);
        watch.noteSent(command);
        for (int time = 0; time < after; time += 100)
            watch.advance(100);
        watch.noteLine(MessageKind(answer));
        QVERIFY(!watch.isBoxMute());
        watch.advance(2000);
        QCOMPARE(missed.size(), unanswered.isEmpty() ? 0 : 1);
        QCOMPARE(missed.value(0).value(0).toString(), unanswered);
    }

    /// How a shot of 12 s at 5 ms comes in: what is late, and what never comes.
    void missing_data()
    {
        columns<int, int, int, int, int, int>("stallBegin", "stallEnd", "lossBegin", "lossEnd", "stop", "missing");
        row("all on time", 0, 0, 0, 0, 12000, 0);
        row("a stall", 3000, 7000, 0, 0, 12000, 0);
        row("a stall to the end", 9000, 12500, 0, 0, 12000, 0);
        row("a loss", 0, 0, 3000, 5000, 12000, 400);
        row("a stall and a loss in it", 3000, 7000, 4000, 5000, 12000, 200);
        row("a loss to the end", 0, 0, 11000, 12000, 12000, 200);
        row("the end of it unasked", 0, 0, 11000, 12000, -1, 0);
        row("a small share", 0, 0, 3000, 3200, 12000, 0);
        row("stopped early, the rest still comes", 0, 0, 0, 0, 6000, 0);
    }

    void missing()
    {
        QFETCH(int, stallBegin);
        QFETCH(int, stallEnd);
        QFETCH(int, lossBegin);
        QFETCH(int, lossEnd);
        QFETCH(int, stop);
        MissingLines lines;
        lines.begin(5);
        for (int time = 0; time < 12000; time += 5) {
            if (time >= lossBegin && time < lossEnd)
                continue;
            const int arrival = time >= stallBegin && time < stallEnd ? stallEnd : time;
            if (stop >= 0 && arrival >= stop)
                lines.noteStopRequest(stop);
            lines.noteLine(100000 + arrival);
        }
        if (stop >= 0)
            lines.noteStopRequest(100000 + stop);
        QTEST(lines.worthTelling(), "missing");
    }

    void missingOverAChangeOfPeriod()
    {
        MissingLines lines;
        lines.begin(5);
        for (int time = 0; time < 10000; time += 10) // half of what is promised
            lines.noteLine(time);
        lines.setPeriod(10);
        for (int time = 10000; time < 20000; time += 10)
            lines.noteLine(time);
        QVERIFY(lines.worthTelling() > 800 && lines.worthTelling() < 1000);
        QCOMPARE(lines.count(), 2000);
    }

    void rate()
    {
        RateMeter meter;
        QCOMPARE(meter.perSecond(), 0.0);
        for (int time = 0; time <= 20000; time += 250)
            meter.note(time, time / 5);
        QCOMPARE(meter.perSecond(), 200.0);
        for (int time = 20250; time <= 26000; time += 250)
            meter.note(time, 4000);
        QCOMPARE(meter.perSecond(), 0.0);
        meter.note(26250, 10); // another shot
        QCOMPARE(meter.perSecond(), 0.0);
    }
};

QTEST_GUILESS_MAIN(TestLinkWatch)
#include "tst_linkwatch.moc"
