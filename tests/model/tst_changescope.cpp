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

} // namespace

class TestChangeScope : public QObject
{
    Q_OBJECT

private slots:
    void announcesOnce_data()
    {
        columns<Steps, QString>("steps", "afterwards");
        const auto row = [](const char *name, const Steps &steps, const char *afterwards) {
            ::row(name, steps, QString::fromLatin1(afterwards));
        };
        row(
            "nothing", [](Model &) {}, "");
        row(
            "one of a kind",
            [](Model &m) {
                m.setComment("a"_s);
                m.setClock(5);
            },
            "P");
        row(
            "in the order of the model",
            [](Model &m) {
                m.setCurrentFile("/x"_s);
                m.emitDataChanged();
                m.setOffset(0, 1.0);
                m.emitAppStateChanged();
            },
            "APDF");
        row(
            "nested",
            [](Model &m) {
                const ChangeScope outer(&m);
                m.clearData();
                {
                    const ChangeScope inner(&m);
                    m.setComment("a"_s);
                }
                m.clearData();
            },
            "PD");
        row(
            "blocked before",
            [](Model &m) {
                m.blockSignals(true);
                m.setComment("a"_s);
            },
            "P");
        row(
            "a change that is none",
            [](Model &m) {
                m.setProjectModifiedFlag(false);
                m.setOffset(9, 1.0);
            },
            "");
        row(
            "there and back", [](Model &m) { m.clear(); }, "PD");
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
        QVERIFY(model.open(folder.filePath("a.vnt"_s)));
        QCOMPARE(states.join(QLatin1Char(' ')), "a.vnt"_s); // the mark was set while nobody could hear of it
    }
};

QTEST_MAIN(TestChangeScope)
#include "tst_changescope.moc"
