#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/window/state/linkstatus.h"
#include "view/window/state/statetext.h"

namespace {

using Link = LinkStatus::Link;
using Mood = StateText::Mood;

const QDateTime kTime(QDate(2026, 11, 22), QTime(14, 5, 10));

LinkStatus connected()
{
    LinkStatus status;
    status.link = Link::On;
    status.box = "192.168.4.1"_s;
    status.shots = 12;
    return status;
}

LinkStatus recording()
{
    LinkStatus status = connected();
    status.recordingSince = kTime;
    status.samples = 3456;
    status.rate = 199.96;
    return status;
}

LinkStatus lost(Link link)
{
    LinkStatus status;
    status.link = link;
    status.box = "192.168.4.1"_s;
    status.lostAt = kTime;
    status.reason = "Verbindung abgelehnt"_s;
    status.nextAttempt = 4;
    status.timeToNext = 9100;
    return status;
}

template <typename Changer>
LinkStatus with(LinkStatus status, Changer change)
{
    change(status);
    return status;
}

} // namespace

Q_DECLARE_METATYPE(LinkStatus)
Q_DECLARE_METATYPE(StateText::Mood)

class TestStateText : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }

    void states_data()
    {
        columns<LinkStatus, QString, QString, Mood, bool, bool>("status", "head", "detail", "mood", "canStop",
                                                                "canAcknowledge");
        row("off", LinkStatus(), "Nicht verbunden", "", Mood::Neutral, false, false);
        row("connecting", with({}, [](LinkStatus &s) { s.link = Link::Connecting; }), "Verbindung wird aufgebaut ...",
            "", Mood::Neutral, false, false);
        row("connected", connected(), "Verbunden", "192.168.4.1", Mood::Good, false, false);
        row("demonstration", with(connected(), [](LinkStatus &s) { s.isDemo = true; }), "Verbunden", "Simulierte Box",
            Mood::Good, false, false);
        row("recording", recording(), "Aufzeichnung läuft",
            "192.168.4.1  ·  seit 14:05:10  ·  Messung 12  ·  3.456 Werte  ·  200,0 Werte/s", Mood::Recording, false,
            false);
        row("stale", with(recording(), [](LinkStatus &s) { s.staleFor = 5999; }), "keine Daten seit 5 s",
            "seit 14:05:10", Mood::Warning, false, false);
        row("mute", with(connected(), [](LinkStatus &s) { s.isBoxMute = true; }), "Die Box antwortet nicht",
            "Netzwerkkabel", Mood::Warning, false, false);
        row("values missing", with(connected(), [](LinkStatus &s) { s.missing = 34; }), "Verbunden",
            "letzte Messung: 34 Werte fehlen", Mood::Warning, false, true);
        row("retrying", lost(Link::Retrying), "Verbindung verloren", "4. Versuch in 10 s", Mood::Alarm, true, false);
        row("will continue", with(lost(Link::Retrying), [](LinkStatus &s) { s.willContinue = true; }),
            "Verbindung verloren", "4. Versuch in 10 s  ·  Verbindung abgelehnt  ·  Aufzeichnung geht dann weiter",
            Mood::Alarm, true, false);
        row("given up", lost(Link::Off), "Verbindung verloren", "um 14:05:10", Mood::Alarm, false, true);
        row("back",
            with(recording(),
                 [](LinkStatus &s) {
                     s.lostAt = kTime.addSecs(-30);
                     s.backAt = kTime;
                 }),
            "Aufzeichnung läuft", "unterbrochen 14:04:40–14:05:10", Mood::Warning, false, true);
    }

    void states()
    {
        QFETCH(LinkStatus, status);
        QFETCH(QString, detail);
        const StateText text = stateText(status);
        QTEST(text.head, "head");
        QVERIFY2(text.detail.contains(detail), qUtf8Printable(text.detail));
        QTEST(text.mood, "mood");
        QTEST(text.canStop, "canStop");
        QTEST(text.canAcknowledge, "canAcknowledge");
    }
};

QTEST_GUILESS_MAIN(TestStateText)
#include "tst_statetext.moc"
