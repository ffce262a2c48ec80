#include "app/startup.h"
#include "model/model.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/scriptedprompts.h"
#include "view/blackbox/tabblackbox.h"
#include "view/box/ipaddressdialog.h"
#include "view/common/elidedlabel.h"
#include "view/evaluation/tabevaluation.h"
#include "view/terminal/tabdatalogger.h"
#include "view/window/prompts/dialogprompts.h"
#include "view/window/view.h"

#include <QtWidgets>

#include <cmath>

namespace {

constexpr int kShots = 12;
constexpr int kSamples = 300;

QPixmap photo(QSize size)
{
    QPixmap picture(size);
    QPainter painter(&picture);
    QLinearGradient sky(0, 0, size.width(), size.height());
    sky.setColorAt(0.0, QColor(0x9C, 0xB4, 0xC8));
    sky.setColorAt(1.0, QColor(0x3A, 0x42, 0x4A));
    painter.fillRect(picture.rect(), sky);
    painter.setBrush(Qt::darkYellow);
    painter.drawEllipse(picture.rect().center(), size.width() / 3, size.height() / 3);
    return picture;
}

/// A project as after a quarter of an hour's work.
void fill(Model &model)
{
    const QStringList names{"Werkzeugweg"_s, "Einspritzdruck"_s, "Werkzeuginnendruck"_s, "Schmelzetemperatur"_s,
                            "Werkzeugtemperatur"_s};
    const QStringList units{"mm"_s, "bar"_s, "bar"_s, "°C"_s, "°C"_s};
    SensorDescription description;
    description.setNumSensorGroups(1);
    description.modifiableSensorGroup(0)->setNumSensors(kNumSensors);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        description.modifiableSensorGroup(0)->setSensorName(sensor, names.at(sensor));
        description.modifiableSensorGroup(0)->setSensorUnit(sensor, units.at(sensor));
        for (int shot = 0; shot < kShots; ++shot) {
            const int series = model.appendMeasurement(sensor);
            for (int i = 0; i < kSamples; ++i)
                model.appendSample(sensor, series, 180.0 * (sensor + 1) * std::exp(-i / 90.0) * std::sin(i / 20.0));
        }
    }
    model.setSensorDescription(description);
    ProjectData project;
    project.name = "Gehäusedeckel 4-fach"_s;
    project.customer = "Muster GmbH & Co. KG"_s;
    project.pressure = 850;
    model.setProjectData(project);
    model.setComment("Erste Bemusterung nach dem Umbau.\nKühlkreis 2 gedrosselt."_s);
    model.setImage(0, photo(QSize(1600, 1067)));
    model.setImage(2, photo(QSize(900, 1600)));
    for (int marker = 0; marker < Model::kNumMarkers; ++marker)
        model.setVerticalMarkerAbsolute(marker, 12 + 75 * marker);
    model.emitProjectChanged();
    model.emitDataChanged();
}

QString writeShot(const QDir &folder, int number)
{
    const QString name = folder.filePath("20240305-0914%1.bb"_s.arg(number, 2, 10, QLatin1Char('0')));
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write("[data]\nT=20240305-0914" + QByteArray::number(number).rightJustified(2, '0') + '\n');
    for (int i = 0; i < 150; ++i) {
        QByteArray line = "A=[";
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            line += QByteArray::number((sensor + 1) * std::exp(-i / 40.0) * std::sin(i / (8.0 + sensor))) + ',';
        line.chop(1);
        file.write(line + "]\n");
    }
    file.write("half a li");
    return name;
}

/// Days on the box, one of them here, and an import under way.
void fill(TabBlackBox &tab, Model &model, const QDir &folder)
{
    QStringList entries{"lost+found"_s};
    for (int day = 10; day < 31; ++day)
        entries << "dir-202403%1"_s.arg(day);
    tab.setList(entries);
    QStringList files;
    for (int shot = 0; shot < 9; ++shot)
        files << writeShot(folder, 7 * shot);
    tab.addFetchedFiles("26.03.2024"_s, loggerFiles(files.mid(0, 2)));
    model.setFileList(files.mid(0, 2));
    model.emitProjectChanged();
    tab.addLocalFiles(loggerFiles(files.mid(2, 1)));
    tab.addFetchedFiles("28.03.2024"_s, loggerFiles(files));
    tab.setTransferProgress(3, 7);
    tab.setResult("9 Messungen importiert, 3 Zeilen übersprungen, 1 Datei nicht lesbar"_s);
}

/// Recent projects and addresses, with very long names and files that no longer exist.
void rememberMuch(View &view)
{
    const QDir here(QCoreApplication::applicationDirPath());
    view.rememberProject("/srv/Werkzeuge/alt/Deckel.vnt"_s);
    view.rememberProject("/srv/"_s + "Kunde/Werkzeug/"_s.repeated(12) + "Bemusterung &2 nach dem Umbau.vnt"_s);
    for (const char *name : {"../CTestTestfile.cmake", "../CMakeCache.txt", "../build.ninja"})
        view.rememberProject(here.filePath(QLatin1String(name)));
    view.rememberAddress("mesotra."_s + "spritzerei-halle-3."_s.repeated(6) + "local"_s);
    for (const char *address : {"192.168.4.1", "10.0.0.17", "mesotra-2", "192.168.4.2"})
        view.rememberAddress(QLatin1String(address));
}

/// The picture goes to the folder that VENTARO_PICTURES names, if any: to be looked at.
void keep(QWidget &widget, const QString &name)
{
    const QString folder = qEnvironmentVariable("VENTARO_PICTURES");
    const QPixmap picture = widget.grab();
    QVERIFY(!picture.isNull());
    if (!folder.isEmpty())
        QVERIFY(picture.save(QDir(folder).filePath(name + ".png"_s)));
}

int textWidth(const QAbstractButton *button)
{
    return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
}

int roomForText(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    if (qobject_cast<const QCheckBox *>(button))
        return button->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, button).width();
    return button->width() - (button->icon().isNull() ? 0 : button->iconSize().width());
}

/// The text of a button or a label that has too little room; empty if nothing is clipped.
QString clippedText(const QWidget *page)
{
    for (const auto *button : page->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && !button->text().isEmpty() && roomForText(button) < textWidth(button))
            return button->text();
    }
    for (const auto *label : page->findChildren<QLabel *>()) {
        if (label->isVisible() && !label->wordWrap() && label->width() < label->minimumSizeHint().width()
            && label->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored)
            return label->text();
        const auto *elided = qobject_cast<const ElidedLabel *>(label); // a row's title has the whole name above it
        if (elided && elided->isVisible() && elided->objectName() != "osziTitle"_s
            && elided->contentsRect().width() < elided->fontMetrics().horizontalAdvance(elided->text()))
            return elided->text();
    }
    return {};
}

/// The window as in the middle of a recording, with a link to a box and much that was used before.
void connectAndRecord(View &view, Model &model, DemoState demo)
{
    model.setConnected(true);
    model.emitAppStateChanged();
    view.setDeviceAddress("192.168.4.1"_s);
    view.setRecordingRunning(true);
    view.setDemoState(demo);
    rememberMuch(view);
    model.setDeviceDescription({"2.1"_s, "8.0.3"_s, 1, {{"Werkzeug, Düsenseite"_s, 5, {}}}});
    view.findChild<QCheckBox *>("loggerCheckBoxA1"_s)->setChecked(true);
    for (int i = 0; i < 40; ++i) {
        view.logSample(i * 0.1, {1.5 * i, 2.25, 3.0, 4.0, 5.0});
        view.showLiveValues({1.5 * i, 2.25, 3.0 + i, 4.0, 5.0}, 100);
        view.terminalReceived("%1;12.5;230.1;80;181.5;42\n"_s.arg(i));
    }
    view.terminalSent("run=1\n"_s);
    view.showStatus("Die CSV-Datei konnte nicht gespeichert werden!"_s);
}

void checkPages(View &view, const QString &picture)
{
    const QSize size = view.size();
    for (int tab = 0; tab < view.tabs()->count(); ++tab) {
        view.tabs()->setCurrentIndex(tab);
        QTest::qWait(150);
        QCOMPARE(view.size(), size);
        keep(view, picture.arg(tab));
        QCOMPARE(clippedText(view.tabs()->widget(tab)), QString());
    }
}

void checkEvaluation(View &view, const QString &picture)
{
    view.tabs()->setCurrentWidget(view.tabEvaluation());
    for (int page = 1; page < TabEvaluation::kNumPages; ++page) {
        view.tabEvaluation()->showPage(TabEvaluation::Page(page));
        QTest::qWait(150);
        keep(view, picture.arg("evaluation%1"_s.arg(page)));
        QCOMPARE(clippedText(view.tabEvaluation()), QString());
    }
}

void checkAbout(View &view, const QString &picture)
{
    view.showAbout();
    auto *about = view.findChild<QDialog *>("AboutDialog"_s);
    for (int tab = 0; tab < 2; ++tab) {
        about->findChild<QTabWidget *>()->setCurrentIndex(tab);
        QTest::qWait(50);
        keep(*about, picture.arg("about%1"_s.arg(tab)));
        QCOMPARE(clippedText(about), QString());
    }
}

} // namespace

class TestViewPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { prepareApplication(*qobject_cast<QApplication *>(QCoreApplication::instance())); }

    void init() { QSettings("Tarnwald"_s, "Ventaro"_s).clear(); }

    void nothingIsClipped_data()
    {
        columns<QSize, bool, bool>("size", "connected", "english");
        row("1280x800", QSize(1280, 800), true, false);
        row("1920x1080", QSize(1920, 1080), true, false);
        row("1280x800 without a box", QSize(1280, 800), false, false);
        row("1280x800, English", QSize(1280, 800), true, true);
        row("1920x1080, English", QSize(1920, 1080), true, true);
    }

    void nothingIsClipped()
    {
        QFETCH(QSize, size);
        QFETCH(bool, connected);
        QFETCH(bool, english);
        const QTemporaryDir folder;
        Model model{QString()};
        View view(&model, std::make_unique<ScriptedPrompts>());
        const char *language = english ? "actionLanguageEnglish" : "actionLanguageGerman";
        view.findChild<QAction *>(QLatin1String(language))->trigger();
        if (connected) {
            fill(model);
            fill(*view.tabBlackBox(), model, QDir(folder.path()));
            connectAndRecord(view, model, english ? DemoState::Running : DemoState::Off);
        }
        view.resize(size);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QString picture = QString::fromLatin1(QTest::currentDataTag()).remove(QLatin1Char(' ')) + "-%1"_s;
        checkPages(view, picture);
        checkEvaluation(view, picture);
        QCOMPARE(view.size(), size); // no page forced it larger
        QCOMPARE(clippedText(view.findChild<QToolBar *>("toolBar"_s)), QString());
        view.showProgress("Verbinden mit 192.168.4.1 ..."_s);
        keep(view, picture.arg("progress"_s));
        checkAbout(view, picture);
        auto *menu = view.findChild<QMenu *>("menu"_s);
        menu->resize(menu->sizeHint());
        keep(*menu, picture.arg("menu"_s));
        QVERIFY(menu->sizeHint().height() <= size.height());
    }

    void dialogsFitTheScreen_data()
    {
        columns<QString, QString, int>("title", "text", "buttons");
        row("quit", "Ventaro", "Vor dem Beenden Ventaro Projekt speichern?",
            int(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel));
        row("tool", "Problem",
            "The SCP tool could not be started!<br><br>Tool command: "
            "C:\\Program Files\\Ventaro\\winscp\\winscp.com /command \"open "
            "pi:password@192.168.4.1 -hostkey=* \" \"get -preservetime "
            "/media/usbstick/data/dir-20240305\" \"exit\"<br>Error: No such file",
            int(QMessageBox::Ok));
        row("output", "SCP Problem",
            "SCP was NOT successful!!\n\nPlease check output:"_s
                + "Retrieving /media/usbstick/data/dir-20240305/08-00.bb\n"_s.repeated(400),
            int(QMessageBox::Ok));
    }

    void dialogsFitTheScreen()
    {
        QFETCH(QString, title);
        QFETCH(QString, text);
        QFETCH(int, buttons);
        const QString hint =
            buttons & QMessageBox::Save ? "Escape oder Schließen bricht ab, und nichts ändert sich."_s : QString();
        QMessageBox box;
        fillMessageBox(box, {title, text, QMessageBox::StandardButtons(buttons), QMessageBox::NoButton, false, hint});
        makePanel(box, "help-circle-outline.png"_s);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        keep(box, "box-"_s + QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY2(QRect(800, 600, 401, 101).contains(box.width(), box.height()),
                 qPrintable("%1 x %2"_s.arg(box.width()).arg(box.height())));
        QCOMPARE(clippedText(&box), QString());

        IPAddressDialog dialog("192.168.4"_s, [](const QString &) { return false; });
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        keep(dialog, "address"_s);
        QCOMPARE(clippedText(&dialog), QString());
    }
};

QTEST_MAIN(TestViewPictures)
#include "tst_viewpictures.moc"
