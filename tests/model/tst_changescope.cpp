#include "model/changescope.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"
#include "tests/support/shots.h"

#include <QTemporaryDir>

#include <functional>

using Steps = std::function<void(Model &)>;
Q_DECLARE_METATYPE(Steps)

namespace {

/// One letter for each signal that arrives: Application, Project, Data, View, File.
class Arrivals : public QObject
{
public:
    explicit Arrivals(Model &model)
    {
        listen(model, &Model::appStateChanged, QLatin1Char('A'));
        listen(model, &Model::projectChanged, QLatin1Char('P'));
        listen(model, &Model::dataChanged, QLatin1Char('D'));
        listen(model, &Model::viewDataChanged, QLatin1Char('V'));
        listen(model, &Model::fileStateChanged, QLatin1Char('F'));
    }
    [[nodiscard]] QString letters() const { return m_letters; }

private:
    void listen(Model &model, void (Model::*change)(), QChar letter)
    {
        QObject::connect(&model, change, this, [this, letter] { m_letters += letter; });
    }

    QString m_letters;
};

void changeNothing(Model &model)
{
    model.setProjectModifiedFlag(false);
    model.setOffset(9, 1.0);
}

void changeTwice(Model &model)
{
    model.setComment("a"_s);
    model.setClock(5);
}

void changeInReverse(Model &model)
{
    model.setCurrentFile("/x"_s);
    model.emitDataChanged();
    model.setOffset(0, 1.0);
    model.emitAppStateChanged();
}

void changeNested(Model &model)
{
    const ChangeScope outer(&model);
    model.clearData();
    {
        const ChangeScope inner(&model);
        model.setComment("a"_s);
    }
    model.clearData();
}

void changeBlocked(Model &model)
{
    model.blockSignals(true);
    model.setComment("a"_s);
}

} // namespace

class TestChangeScope : public QObject
{
    Q_OBJECT

private slots:
    void announcesOnce_data()
    {
        // afterwards: what has arrived when the scope has ended
        columns<Steps, QString>("steps", "afterwards");
        row("nothing", Steps([](Model &) {}), QString());
        row("no change", Steps(changeNothing), QString());
        row("two of a kind", Steps(changeTwice), "P"_s);
        row("in the order of the model", Steps(changeInReverse), "APDF"_s);
        row("nested", Steps(changeNested), "PD"_s);
        row("blocked before", Steps(changeBlocked), "P"_s);
        row("announced more than once", Steps([](Model &m) { m.clear(); }), "PD"_s);
    }

    void announcesOnce()
    {
        QFETCH(Steps, steps);
        Model model{QString()};
        const Arrivals arrivals(model);
        {
            const ChangeScope scope(&model);
            steps(model);
            QCOMPARE(arrivals.letters(), QString());
        }
        QTEST(arrivals.letters(), "afterwards");
        QVERIFY(!model.signalsBlocked());
        model.setComment("later"_s);
        QVERIFY(arrivals.letters().endsWith(QLatin1Char('P')));
    }

    void opensWithinAScope()
    {
        QTemporaryDir folder;
        writeFile(folder.filePath("a.vnt"_s), "{}");
        Model model{QString()};
        Arrivals arrivals(model);
        QVERIFY(model.open(folder.filePath("a.vnt"_s)));
        QCOMPARE(arrivals.letters(), "PDVF"_s); // nothing of what clear() and the setters announce meanwhile
        {
            const ChangeScope scope(&model);
            model.emitAppStateChanged();
            QVERIFY(model.open(folder.filePath("a.vnt"_s)));
            QCOMPARE(arrivals.letters(), "PDVF"_s);
        }
        QCOMPARE(arrivals.letters(), "PDVFAPDVF"_s);
    }

    void keepsRemovedSamplesToTheEnd()
    {
        Model model{QString()};
        addShot(model, {1.0, 2.0});
        const SampleList *shown = model.measurement(0, 0);
        int seen = 0;
        QObject::connect(&model, &Model::dataChanged, &model, [&] { seen = shown->size(); });
        {
            const ChangeScope scope(&model);
            {
                const ChangeScope inner(&model);
                model.clearData();
            }
            model.emitDataChanged();
            QCOMPARE(seen, 0);
        }
        QCOMPARE(seen, 2); // a receiver may look at its curves once more before it lets go
    }

    void receiversMayOpenScopes()
    {
        Model model{QString()};
        const Arrivals arrivals(model);
        int rounds = 0;
        QObject::connect(&model, &Model::projectChanged, &model, [&] {
            const ChangeScope scope(&model);
            if (rounds++ == 0)
                model.setComment("again"_s);
        });
        {
            const ChangeScope scope(&model);
            model.setClock(5);
            model.emitDataChanged();
        }
        QCOMPARE(arrivals.letters(), "PPD"_s);
    }

    void tellsOfTheFile()
    {
        QTemporaryDir folder;
        Model model{QString()};
        QStringList states;
        QObject::connect(&model, &Model::fileStateChanged, &model, [&] {
            const QString mark = model.isProjectModified() ? "*"_s : QString();
            states += QFileInfo(model.currentFile()).fileName() + mark;
        });
        model.setProjectModifiedFlag(true);
        model.setProjectModifiedFlag(true);
        QVERIFY(model.save(folder.filePath("a.vnt"_s)));
        QCOMPARE(states.join(QLatin1Char(' ')), "* a.vnt* a.vnt"_s);
        states.clear();
        model.blockSignals(true);
        model.setProjectModifiedFlag(true);
        QVERIFY(model.save(folder.filePath("b.vnt"_s)));
        QCOMPARE(states.join(QLatin1Char(' ')), "a.vnt* b.vnt* b.vnt"_s); // blocked signals do not stop this one
        QVERIFY(model.signalsBlocked());
        states.clear();
        QVERIFY(model.open(folder.filePath("a.vnt"_s)));
        QCOMPARE(states.join(QLatin1Char(' ')), "a.vnt"_s);
    }
};

QTEST_MAIN(TestChangeScope)
#include "tst_changescope.moc"
