#include "tools/demo/demonstration.h"

#include "simulator/mouldcycle.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/sensors/sensortile.h"
#include "view/sensors/tabsensors.h"
#include "view/window/sidetabs.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPixmap>
#include <QThread>

namespace {

constexpr int kShots = 12;
constexpr int kPeriod = 20; // ms for each sample
constexpr int kTimeout = 10000;
constexpr QSize kLaptop(1280, 800);
constexpr QSize kDesktop(1920, 1080);

ControllerOptions optionsFor(const BoxSimulator &box)
{
    ControllerOptions options;
    options.deviceAddress = box.address().toString();
    options.port = box.port();
    return options;
}

void runEvents(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(1);
    }
}

template <typename Widget>
Widget *named(const QObject &parent, const QString &name)
{
    auto *widget = parent.findChild<Widget *>(name);
    if (!widget)
        qFatal("no widget named %s", qPrintable(name));
    return widget;
}

} // namespace

Demonstration::Demonstration(BoxSimulator &box, const QDir &folder)
    : m_box(box)
    , m_folder(folder)
    , m_model(QString())
    , m_view(&m_model)
    , m_controller(&m_model, &m_view, optionsFor(box))
{
    QObject::connect(&m_dialogs, &DialogDriver::pictureWanted, this, &Demonstration::savePicture);
}

QStringList Demonstration::run()
{
    m_view.resize(kLaptop);
    m_view.move(0, 0);
    m_view.show();
    runEvents(100);
    picture(QStringLiteral("start"));
    connectToBox();
    choosePeriod();
    recordShots();
    setMarkers();
    namePhases();
    deleteShot();
    calibrate();
    recordSlowShot();
    showTabs();
    saveFiles();
    reopen();
    loseLink();
    leave();
    check(m_dialogs.isDone(), QStringLiteral("dialogs: ") + m_dialogs.surprises().join(QStringLiteral("; ")));
    return m_failures;
}

// --- Steps -----------------------------------------------------------------------------------------------------

void Demonstration::connectToBox()
{
    m_dialogs.expect({QStringLiteral("project-received"), QStringLiteral("Ja")});
    trigger("actionConnect");
    savePicture(&m_view, QStringLiteral("connecting")); // at once: a local connection is established immediately
    waitFor([&] { return m_model.isConnected(); }, QStringLiteral("connection"));
    waitFor([&] { return !m_model.projectData().name.isEmpty(); }, QStringLiteral("project description"));
    check(m_model.sensorDescription().sensorGroup(0).numSensors() == kNumSensors, QStringLiteral("sensor description"));
    runEvents(100);
    picture(QStringLiteral("connected"));
}

void Demonstration::choosePeriod()
{
    named<QLineEdit>(m_view, QStringLiteral("lineEditTerminal"))->setText(QStringLiteral("t=%1").arg(kPeriod));
    named<QAbstractButton>(m_view, QStringLiteral("buttonSend"))->click();
    waitFor([&] { return m_model.clock() == kPeriod; }, QStringLiteral("sampling period"));
}

/// The box sends a whole cycle as fast as it can, so that twelve shots take seconds.
void Demonstration::recordShots()
{
    named<QAbstractButton>(m_view, QStringLiteral("loggerCheckBoxA0"))->click();
    named<QAbstractButton>(m_view, QStringLiteral("loggerCheckBoxA1"))->click();
    showTab(m_view.tabOszi());
    BoxOptions options = m_box.options();
    options.burst = static_cast<int>(options.cycleSeconds * 1000 / kPeriod);
    m_box.setOptions(options);
    for (int shot = 0; shot < kShots; ++shot) {
        trigger("actionStartRecording");
        waitFor([&] { return m_controller.isRecordingRunning() && samplesOfNewestShot() >= options.burst; },
                QStringLiteral("shot %1").arg(shot + 1));
        trigger("actionStartRecording");
        waitFor([&] { return !m_controller.isRecordingRunning(); }, QStringLiteral("end of shot"));
        if (shot == 0)
            picture(QStringLiteral("first-shot"));
    }
    check(m_model.numChannels(4) == kShots, QStringLiteral("number of shots"));
    picture(QStringLiteral("several-shots"));
}

void Demonstration::recordSlowShot()
{
    BoxOptions options = m_box.options();
    options.burst = options.burst / 2; // the rest arrives in real time
    m_box.setOptions(options);
    trigger("actionStartRecording");
    waitFor([&] { return m_controller.isRecordingRunning() && samplesOfNewestShot() > options.burst + 20; },
            QStringLiteral("live samples"));
    picture(QStringLiteral("recording"));
    m_view.resize(kDesktop);
    runEvents(150);
    picture(QStringLiteral("recording"));
    m_view.resize(kLaptop);
    showLiveSensors();
    trigger("actionStartRecording");
    waitFor([&] { return !m_controller.isRecordingRunning(); }, QStringLiteral("end of the live shot"));
    showTab(m_view.tabOszi());
}

/// One tile of each kind.
void Demonstration::showLiveSensors()
{
    showTab(m_view.tabSensors());
    const QList<SensorTile *> tiles = m_view.tabSensors()->findChildren<SensorTile *>();
    for (SensorTile *tile : tiles)
        emit tile->kindChosen(static_cast<DisplayKind>(tile->sensor().sensor % kNumDisplayKinds));
    runEvents(300);
    picture(QStringLiteral("sensors-live"));
}

void Demonstration::setMarkers()
{
    const PhaseEnds ends = MouldCycle(m_box.options().seed, m_box.options().cycleSeconds).phaseEnds(1);
    auto *absolute = named<QAbstractButton>(*m_view.tabOszi(), QStringLiteral("checkBoxMarkerAbsolute"));
    if (!absolute->isChecked())
        absolute->click();
    const double seconds[] = {ends.closing, ends.injection, ends.holding, ends.cooling};
    for (int i = 0; i < Model::kNumMarkers; ++i)
        named<QDoubleSpinBox>(*m_view.tabOszi(), QStringLiteral("markerSpinBox%1").arg(i + 1))->setValue(seconds[i]);
    check(m_model.verticalMarker(3) == qRound(qRound(ends.cooling * 1000.0) / double(kPeriod)),
          QStringLiteral("markers"));
}

void Demonstration::namePhases()
{
    const QString name = QStringLiteral("Füllen");
    auto *edit = named<QLineEdit>(*m_view.tabProject(), QStringLiteral("lineEditPhase2"));
    edit->setText(name);
    emit edit->textEdited(name);
    emit edit->editingFinished();
    check(m_model.phaseName(1) == name, QStringLiteral("phase name"));
}

void Demonstration::deleteShot()
{
    const SampleList kept = *m_model.measurement(0, 3);
    m_dialogs.expect({QStringLiteral("delete"), QStringLiteral("Ja")});
    named<QLineEdit>(*m_view.tabOszi(), QStringLiteral("measToDeleteLineEdit"))->setText(QStringLiteral("2-3"));
    named<QAbstractButton>(*m_view.tabOszi(), QStringLiteral("buttonDeleteMeasurement"))->click();
    waitFor([&] { return m_model.numChannels(0) == kShots - 2; }, QStringLiteral("deletion"));
    check(*m_model.measurement(0, 1) == kept, QStringLiteral("shot behind the deleted ones"));
}

void Demonstration::calibrate()
{
    m_dialogs.expect({QStringLiteral("calibration"), QStringLiteral("OK")});
    trigger("actionCalibrate");
    check(m_model.offset(2) == -m_model.latestValue(0, 2), QStringLiteral("calibration"));
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        m_model.setOffset(sensor, 0.0); // the pictures show the curves at their real height
}

void Demonstration::showTabs()
{
    for (const QSize size : {kLaptop, kDesktop}) {
        m_view.resize(size);
        for (int tab = 0; tab < m_view.tabs()->count(); ++tab) {
            m_view.tabs()->setCurrentIndex(tab);
            runEvents(120);
            picture(QStringLiteral("tab-") + m_view.tabs()->widget(tab)->objectName().mid(3).toLower());
        }
    }
    m_view.resize(kLaptop);
}

void Demonstration::saveFiles()
{
    m_dialogs.expect({QStringLiteral("save"), QString(), path(QStringLiteral("demo.vnt"))});
    trigger("actionSaveProject");
    check(!m_model.isProjectModified() && m_folder.exists(QStringLiteral("demo.vnt")), QStringLiteral("saving"));
    m_dialogs.expect({QString(), QString(), path(QStringLiteral("demo.csv"))});
    trigger("actionSaveCSV");
    check(m_folder.exists(QStringLiteral("demo.csv")), QStringLiteral("CSV export"));
    m_dialogs.expect({QString(), QString(), path(QStringLiteral("terminal.txt"))});
    trigger("actionSaveTerminal");
    check(m_folder.exists(QStringLiteral("terminal.txt")), QStringLiteral("terminal export"));
}

void Demonstration::reopen()
{
    Model kept(path(QStringLiteral("demo.vnt")));
    check(difference(m_model, kept).isEmpty(), QStringLiteral("the file differs in: ") + difference(m_model, kept));
    trigger("actionNewProject");
    check(m_model.numChannels(0) == 0, QStringLiteral("new project"));
    m_dialogs.expect({QStringLiteral("open"), QString(), path(QStringLiteral("demo.vnt"))});
    trigger("actionOpenProject");
    check(m_model.numChannels(0) == kShots - 1 && difference(m_model, kept).isEmpty(),
          QStringLiteral("opened project differs in: ") + difference(m_model, kept));
    showTab(m_view.tabOszi());
    picture(QStringLiteral("reopened"));
}

void Demonstration::loseLink()
{
    m_dialogs.expect({QStringLiteral("link-lost"), QStringLiteral("OK")});
    m_dialogs.expect({QStringLiteral("reconnect"), QStringLiteral("Abbrechen")});
    m_box.dropLink();
    waitFor([&] { return m_dialogs.isDone() && !QApplication::activeModalWidget(); }, QStringLiteral("lost link"));
    check(!m_model.isConnected() && m_model.numChannels(0) == kShots - 1, QStringLiteral("data after a lost link"));
}

void Demonstration::leave()
{
    m_dialogs.expect({QStringLiteral("quit"), QStringLiteral("OK")});
    m_view.close();
    check(m_view.isVisible(), QStringLiteral("closing the window is only a wish"));
}

// --- Helpers ---------------------------------------------------------------------------------------------------

void Demonstration::trigger(const char *action)
{
    named<QAction>(m_view, QLatin1String(action))->trigger();
}

void Demonstration::check(bool condition, const QString &what)
{
    if (!condition)
        m_failures.append(what);
}

void Demonstration::waitFor(const std::function<bool()> &condition, const QString &what)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < kTimeout)
        runEvents(5);
    check(condition(), what);
}

void Demonstration::picture(const QString &name)
{
    runEvents(50);
    savePicture(&m_view, name);
}

void Demonstration::savePicture(QWidget *widget, const QString &name)
{
    const QPixmap pixmap = widget->grab();
    const QString file = QStringLiteral("%1-%2-%3x%4.png")
                             .arg(++m_pictures, 2, 10, QLatin1Char('0'))
                             .arg(name)
                             .arg(pixmap.width())
                             .arg(pixmap.height());
    check(pixmap.save(path(file)), QStringLiteral("picture ") + file);
}

void Demonstration::showTab(QWidget *page)
{
    m_view.tabs()->setCurrentWidget(page);
    runEvents(50);
}

int Demonstration::samplesOfNewestShot() const
{
    const SampleList *samples = m_model.measurement(4, m_model.numChannels(4) - 1);
    return samples ? samples->size() : 0;
}
