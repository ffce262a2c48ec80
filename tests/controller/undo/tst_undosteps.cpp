#include "tests/controller/bench.h"

#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/overlay/overlaytable.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/evaluation/tabevaluation.h"
#include "view/project/tabproject.h"
#include "view/sensors/tabsensors.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTranslator>

#include <functional>

namespace {

/// All of a project that undo has to give back.
struct State
{
    QByteArray project; // the files, as they would be saved
    QByteArray meta;
    QVector<QColor> colors;
    QSet<QByteArray> imported;
    QVector<quint64> ids;

    [[nodiscard]] bool operator==(const State &other) const
    {
        return project == other.project && meta == other.meta && colors == other.colors && imported == other.imported
               && ids == other.ids;
    }
};

QByteArray contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

State stateOf(Model &model)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("state.vnt"_s);
    State state;
    if (!model.save(fileName))
        qFatal("cannot save");
    state.project = contentsOf(fileName);
    state.meta = contentsOf(fileName + ".meta"_s);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        state.colors.append(model.color(sensor));
        for (int shot = 0; shot < model.numChannels(sensor); ++shot)
            state.ids.append(model.measurementId(sensor, shot));
    }
    state.imported = model.importedFiles();
    return state;
}

/// Something that the user, or the box, can do to a project with five shots.
struct Kind
{
    const char *name; // as the menu shows it
    std::function<void(Bench &bench)> act;
};

template <typename Widget>
Widget *find(const Bench &bench, const QString &name)
{
    return bench.view.findChild<Widget *>(name);
}

void type(Bench &bench, const QString &field, const QString &text)
{
    QTest::keyClicks(bench.view.findChild<QWidget *>(field), text);
}

QImage picture(Qt::GlobalColor color)
{
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

QString loggerFile()
{
    static const QTemporaryDir folder;
    const QString name = folder.filePath("000007.bb"_s);
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write("A=[7,7,7,7,7]\nA=[8,8,8,8,8]\n") < 0)
        qFatal("cannot write");
    return name;
}

const QByteArray kSensors = "<sensorDescription numGroups=\"1\"><group groupPos=\"0\" name=\"G\" numSensors=\"5\">"
                            "<sensor name=\"Box 1\" type=\"P\" min=\"0\" max=\"9\" unit=\"bar\"/>"
                            "</group></sensorDescription>";
const QByteArray kProject = "<deviceDescription hardwareVersion=\"1\" firmwareVersion=\"2\" numGroups=\"0\">"
                            "<projectDescription projectName=\"Box\" projectNumber=\"4\" phase1=\"P1\" phase2=\"P2\" "
                            "phase3=\"P3\" phase4=\"P4\" phase5=\"P5\" closePower=\"7\"/>";

std::vector<Kind> shotKinds()
{
    return {
        {"Löschen von 3 Messungen", [](Bench &b) { b.controller.onTabOszi_deleteMeasurements("1,3-4"_s); }},
        {"Löschen einer Messung", [](Bench &b) { b.controller.onTabOszi_deleteMeasurements("2,1-2-3,4"_s); }},
        {"Löschen aller Messdaten",
         [](Bench &b) {
             b.prompts->answers = {QMessageBox::Ok};
             b.controller.onTabProject_clearDataClicked();
         }},
        {"Import einer Datei", [](Bench &b) { b.controller.onTabBlackBox_importClicked({loggerFile()}); }},
        {"Änderung der Abtastrate", [](Bench &b) { b.say("t=250"); }},
        {"Bezeichnung von Messung 2",
         [](Bench &b) { emit b.view.findChild<OverlayTable *>()->labelEdited(1, "anders"_s); }},
    };
}

std::vector<Kind> oszilloscopeKinds()
{
    return {
        {"Kalibrierung", [](Bench &b) { b.controller.onActionCalibration(); }},
        {"Offset von Sensor 2", [](Bench &b) { emit b.view.tabOszi()->offsetEdited(1, 2.5); }},
        {"Zurücksetzen der Offsets", [](Bench &b) { b.view.resetCorrection(); }},
        {"Marker 2", [](Bench &b) { b.controller.onTabOszi_markerChangedAbsolute(1, 9000); }},
        {"Marker 3", [](Bench &b) { b.controller.onTabOszi_markerChangedRelative(2, 300); }},
        {"Löschen der Marker", [](Bench &b) { find<QPushButton>(b, "buttonClearMarkers"_s)->click(); }},
        {"Umstellung der Marker", [](Bench &b) { b.controller.onTabOszi_checkBoxMarkerAbsClicked(true); }},
        {"Bereich von Sensor 1", [](Bench &b) { find<QDoubleSpinBox>(b, "maxSpinBox1"_s)->setValue(77.5); }},
        {"Bereich von Sensor 5", [](Bench &b) { find<QDoubleSpinBox>(b, "minSpinBox5"_s)->setValue(-3); }},
        {"Änderung von Mein Sensor", [](Bench &b) { emit b.view.tabSensors()->sensorNameEdited(3, "Neu"_s); }},
        {"Änderung von Sensor 2", [](Bench &b) { emit b.view.tabSensors()->sensorUnitEdited(1, "kN"_s); }},
        {"Änderung von Sensor 1", [](Bench &b) { emit b.view.tabSensors()->sensorColorEdited(0, Qt::magenta); }},
        {"Änderung von Sensor 3", [](Bench &b) { emit b.view.tabSensors()->sensorLimitsEdited(0, 2, -5, 5); }},
        {"Übernahme der Sensorbeschreibung", [](Bench &b) { b.say(kSensors); }},
    };
}

std::vector<Kind> projectKinds()
{
    return {
        {"Eingabe in \"Projekt\"", [](Bench &b) { type(b, "lineEditProjectName"_s, "Deckel 7"_s); }},
        {"Eingabe in \"Kunde\"", [](Bench &b) { type(b, "lineEditProjectCustomer"_s, "Muster"_s); }},
        {"Eingabe in \"Druck\"", [](Bench &b) { find<QSpinBox>(b, "spinBoxPressure"_s)->setValue(120); }},
        {"Eingabe in \"Kommentar\"", [](Bench &b) { type(b, "textEditComment"_s, "Grat am Rand"_s); }},
        {"Name der Phase 2", [](Bench &b) { type(b, "lineEditPhase2"_s, "!"_s); }},
        {"Einfügen von Bild 3", [](Bench &b) { emit b.view.tabProject()->imageGiven(2, picture(Qt::red)); }},
        {"Ersetzen von Bild 1", [](Bench &b) { emit b.view.tabProject()->imageGiven(0, picture(Qt::green)); }},
        {"Löschen von Bild 1", [](Bench &b) { emit b.view.tabProject()->imageDeleteClicked(0); }},
        {"Grenzen von Sensor 1, Maximum",
         [](Bench &b) {
             auto *data = b.view.findChild<EvaluationData *>();
             data->setLimits(0, {Quantity::Kind::Maximum, Quantity::kWholeShot}, {1.0, 3.0});
         }},
        {"Spalten von Sensor 2",
         [](Bench &b) {
             auto *data = b.view.findChild<EvaluationData *>();
             data->setShown(1, {Quantity::Kind::Mean, Quantity::kWholeShot}, false);
         }},
        {"Schwellen der Laufzeit", [](Bench &b) { find<QDoubleSpinBox>(b, "spinBoxStartValue"_s)->setValue(2.5); }},
        {"Übernahme der Projektbeschreibung",
         [](Bench &b) {
             b.say(kProject);
             (void)QTest::qWaitFor([&b] { return b.model.projectData().name == "Box"_s; });
         }},
    };
}

std::vector<Kind> allKinds()
{
    std::vector<Kind> kinds = shotKinds();
    for (const auto &more : {oszilloscopeKinds(), projectKinds()})
        kinds.insert(kinds.end(), more.begin(), more.end());
    return kinds;
}

/// Five shots, and something in every place that a step could change.
void fill(Bench &bench)
{
    bench.recordShots(5);
    DeviceDescription box;
    box.hardwareVersion = "1"_s; // as in kProject: undo leaves the versions alone
    box.firmwareVersion = "2"_s;
    bench.model.setDeviceDescription(box);
    bench.model.setShotLabel(1, "Zwei"_s);
    bench.model.setShotLabel(4, "Fünf"_s);
    bench.model.setOffset(1, -1.0);
    for (int marker = 0; marker < Model::kNumMarkers; ++marker)
        bench.model.setVerticalMarkerAbsolute(marker, 10 * marker + 5);
    bench.model.setSensorName(3, "Mein Sensor"_s);
    bench.model.setImage(0, QPixmap::fromImage(picture(Qt::blue)));
}

void press(Bench &bench, const char *action)
{
    bench.view.findChild<QAction *>(QLatin1String(action))->trigger();
}

QString textOf(const Bench &bench, const char *action)
{
    return bench.view.findChild<QAction *>(QLatin1String(action))->text();
}

} // namespace

class TestUndoSteps : public QObject
{
    Q_OBJECT

private slots:
    void kinds_data()
    {
        QTest::addColumn<int>("kind");
        for (std::size_t i = 0; i < allKinds().size(); ++i)
            QTest::newRow(allKinds()[i].name) << int(i);
    }

    void kinds()
    {
        QFETCH(int, kind);
        const Kind step = allKinds()[static_cast<std::size_t>(kind)];
        Bench bench;
        fill(bench);
        bench.prompts->answers = {QMessageBox::Yes};
        const State before = stateOf(bench.model);
        step.act(bench);
        const State after = stateOf(bench.model);
        QVERIFY(!(before == after));
        QCOMPARE(textOf(bench, "actionUndo"), QString::fromUtf8(step.name) + " rückgängig machen"_s);

        for (int turn = 0; turn < 2; ++turn) {
            bench.model.setProjectModifiedFlag(false);
            press(bench, "actionUndo");
            QVERIFY(bench.model.isProjectModified());
            QVERIFY(bench.view.statusBar()->currentMessage().contains(QString::fromUtf8(step.name)));
            QVERIFY(!bench.model.signalsBlocked());
            QVERIFY(bench.slotsMatchModel());
            QVERIFY(stateOf(bench.model) == before);
            QCOMPARE(textOf(bench, "actionUndo"), "Rückgängig"_s); // one step, however many keys it took
            QCOMPARE(textOf(bench, "actionRedo"), QString::fromUtf8(step.name) + " wiederholen"_s);
            press(bench, "actionRedo");
            QVERIFY(bench.slotsMatchModel());
            QVERIFY(stateOf(bench.model) == after);
        }
        bench.view.grab(); // paints what is there now
    }

    /// What is no step stays as it is when the step before it is undone.
    void othersStay()
    {
        Bench bench;
        fill(bench);
        bench.controller.onTabOszi_markerChangedAbsolute(3, 9000);
        emit bench.view.tabOszi()->offsetEdited(4, 3.0);
        bench.model.setClock(50);            // as a connection does
        bench.model.setOsziMaximum(2, 12.0); // as the wheel does
        bench.model.setOffset(0, 4.0);
        press(bench, "actionUndo");
        press(bench, "actionUndo");
        QCOMPARE(bench.model.verticalMarker(3), 35);
        QCOMPARE(bench.model.offset(4), 0.0);
        QCOMPARE(bench.model.clock(), 50);
        QCOMPARE(bench.model.osziMaximum(2), 12.0);
        QCOMPARE(bench.model.offset(0), 4.0);
    }

    /// Other fields and pauses end a step; an undone one is never continued.
    void typingIsJoined()
    {
        Bench bench;
        const auto name = [&bench] { return bench.model.projectData().name; };
        type(bench, "lineEditProjectName"_s, "ab"_s);
        type(bench, "lineEditProjectNumber"_s, "12"_s);
        type(bench, "lineEditProjectName"_s, "cd"_s);
        QCOMPARE(name(), "abcd"_s);
        press(bench, "actionUndo");
        QCOMPARE(name(), "ab"_s);
        type(bench, "lineEditProjectName"_s, "e"_s);
        press(bench, "actionUndo");
        QCOMPARE(name(), "ab"_s);
        press(bench, "actionUndo");
        QVERIFY(bench.model.projectData().number.isEmpty());
        press(bench, "actionUndo");
        QVERIFY(name().isEmpty());
        QVERIFY(!bench.view.findChild<QAction *>("actionUndo"_s)->isEnabled());
        type(bench, "lineEditProjectName"_s, "x\b"_s); // typed and taken back: nothing to undo
        QVERIFY(!bench.view.findChild<QAction *>("actionUndo"_s)->isEnabled());
    }

    void forgottenWithTheProject_data()
    {
        columns<bool, bool>("replaces", "left");
        row("saved", false, true);
        row("another project", true, false);
    }

    void forgottenWithTheProject()
    {
        QFETCH(bool, replaces);
        QFETCH(bool, left);
        Bench bench;
        fill(bench);
        bench.prompts->answers = {QMessageBox::Yes};
        bench.controller.onTabOszi_deleteMeasurements("1"_s);
        (void)stateOf(bench.model); // saves
        if (replaces)
            bench.controller.onNewProject();
        QCOMPARE(bench.view.findChild<QAction *>("actionUndo"_s)->isEnabled(), left);
    }

    /// A first description replaces nothing that somebody wrote, and a repeated one changes nothing.
    void descriptionsThatTakeNothingAway()
    {
        Bench bench;
        bench.say(kSensors);
        bench.say(kSensors);
        QCOMPARE(bench.model.sensorDescription().sensorGroup(0).sensorName(0), "Box 1"_s);
        QVERIFY(!bench.view.findChild<QAction *>("actionUndo"_s)->isEnabled());
    }

    void refusedWhileOccupied()
    {
        Bench bench;
        fill(bench);
        emit bench.view.tabOszi()->offsetEdited(1, 8.0);
        bench.prompts->answers = {QMessageBox::No};
        bench.prompts->whileOpen = [&bench] { press(bench, "actionUndo"); };
        bench.controller.onTabOszi_deleteMeasurements("1"_s);
        QCOMPARE(bench.model.offset(1), 8.0);
        QVERIFY(bench.view.statusBar()->currentMessage().startsWith("Bitte warten"_s));
        bench.model.setYield([&bench](int) { press(bench, "actionUndo"); });
        (void)stateOf(bench.model); // while it is being saved
        QCOMPARE(bench.model.offset(1), 8.0);
    }

    /// A default name follows the language, also one that comes back.
    void defaultPhaseNamesFollowTheLanguage()
    {
        Bench bench;
        type(bench, "lineEditPhase1"_s, "!"_s);
        QCOMPARE(bench.model.phaseName(0), "!WZ schließen"_s);
        QVERIFY(bench.view.findChild<QAction *>("actionUndo"_s)->isEnabled());
        class English : public QTranslator
        {
        public:
            [[nodiscard]] bool isEmpty() const override { return false; }
            QString translate(const char * /*context*/, const char *text, const char * /*note*/,
                              int /*n*/) const override
            {
                const QString german = QString::fromUtf8(text);
                if (german == "%1 rückgängig machen"_s)
                    return "undo %1"_s;
                return german == "WZ schließen"_s ? "closing"_s : QString();
            }
        } english;
        QCoreApplication::installTranslator(&english);
        QTRY_COMPARE(textOf(bench, "actionUndo"), "undo Name der Phase 1"_s);
        press(bench, "actionUndo");
        QCOMPARE(bench.model.phaseName(0), "closing"_s);
        QCoreApplication::removeTranslator(&english);
    }

    // --- Keys ---

    void keysInATextField()
    {
        Bench bench;
        fill(bench);
        bench.view.tabs()->setCurrentWidget(bench.view.tabProject());
        bench.view.show();
        bench.view.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&bench.view));
        bench.prompts->answers = {QMessageBox::Yes};
        bench.controller.onTabOszi_deleteMeasurements("1"_s);

        for (const char *name : {"lineEditProjectName", "textEditComment", "spinBoxPressure"}) {
            auto *field = bench.view.findChild<QWidget *>(QLatin1String(name));
            field->setFocus();
            QTRY_COMPARE(QApplication::focusWidget(), field);
            const State before = stateOf(bench.model);
            QTest::keyClicks(field, "12"_s);
            const State after = stateOf(bench.model);
            QVERIFY(!(before == after));
            QVERIFY2(QApplication::focusWidget() == field, name);
            // Its own text first, the project with it.
            while (!(stateOf(bench.model) == before)) {
                QVERIFY2(bench.shots() == 4, name);
                QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
            }
            QCOMPARE(bench.shots(), 4);
            QTest::keyClick(field, Qt::Key_Y, Qt::ControlModifier);
            QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            QVERIFY(stateOf(bench.model) == after);
            while (!(stateOf(bench.model) == before))
                QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
            // Then what was done before that.
            QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(bench.shots(), 5);
            QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            QCOMPARE(bench.shots(), 4);
        }
    }

    /// Not what was typed before, although the field could still undo it.
    void keyAfterAnActionMeansTheAction()
    {
        Bench bench;
        fill(bench);
        bench.view.tabs()->setCurrentWidget(bench.view.tabProject());
        bench.view.show();
        bench.view.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&bench.view));
        auto *field = bench.view.findChild<QLineEdit *>("lineEditProjectName"_s);
        field->setFocus();
        QTest::keyClicks(field, "abc"_s);
        field->setCursorPosition(1);
        const double offset = bench.model.offset(0);
        bench.controller.onActionCalibration();
        QVERIFY(bench.model.offset(0) != offset);
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(bench.model.offset(0), offset);
        QCOMPARE(field->text(), "abc"_s);
        QCOMPARE(field->cursorPosition(), 1);
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(field->text().isEmpty());
    }

    /// The range that was typed for the deletion is gone with it: the key means the shots.
    void keyAfterADeletionFromItsField()
    {
        Bench bench;
        fill(bench);
        bench.view.tabs()->setCurrentWidget(bench.view.tabOszi());
        bench.view.show();
        bench.view.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&bench.view));
        auto *field = bench.view.findChild<QLineEdit *>("measToDeleteLineEdit"_s);
        field->setFocus();
        QTest::keyClicks(field, "2-3"_s);
        bench.prompts->answers = {QMessageBox::Yes};
        bench.view.findChild<QPushButton *>("buttonDeleteMeasurement"_s)->click();
        QCOMPARE(bench.shots(), 3);
        field->setFocus();
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(bench.shots(), 5);
        QVERIFY(field->text().isEmpty());
    }

    void menuBeginsWithUndo()
    {
        Bench bench;
        const QList<QAction *> actions = bench.view.findChild<QMenu *>("menu"_s)->actions();
        QCOMPARE(actions.value(0)->objectName(), "actionUndo"_s);
        QCOMPARE(actions.value(1)->objectName(), "actionRedo"_s);
        QVERIFY(actions.value(2)->isSeparator());
        QVERIFY(!actions.value(0)->isEnabled());
        QCOMPARE(actions.value(0)->text(), "Rückgängig"_s);
    }
};

QTEST_MAIN(TestUndoSteps)
#include "tst_undosteps.moc"
