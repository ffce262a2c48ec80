#include "app/startup.h"
#include "model/model.h"
#include "tests/support/scriptedprompts.h"
#include "view/dialogprompts.h"
#include "view/ipaddressdialog.h"
#include "view/tabblackbox.h"
#include "view/tabdatalogger.h"
#include "view/tabevaluation.h"
#include "view/view.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QStyleOptionButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include <cmath>

namespace {

constexpr int kShots = 12;
constexpr int kSamples = 300;

/// A project as after a quarter of an hour's work.
void fill(Model &model)
{
    const QStringList names{QStringLiteral("Werkzeugweg"), QStringLiteral("Einspritzdruck"),
                            QStringLiteral("Werkzeuginnendruck"), QStringLiteral("Schmelzetemperatur"),
                            QStringLiteral("Werkzeugtemperatur")};
    const QStringList units{QStringLiteral("mm"), QStringLiteral("bar"), QStringLiteral("bar"), QStringLiteral("°C"),
                            QStringLiteral("°C")};
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
    project.name = QStringLiteral("Gehäusedeckel 4-fach");
    project.customer = QStringLiteral("Muster GmbH & Co. KG");
    project.pressure = 850;
    model.setProjectData(project);
    model.setComment(QStringLiteral("Erste Bemusterung nach dem Umbau.\nKühlkreis 2 gedrosselt."));
    model.emitProjectChanged();
    model.emitDataChanged();
}

QString writeShot(const QDir &folder, int number)
{
    const QString name = folder.filePath(QStringLiteral("20240305-0914%1.bb").arg(number, 2, 10, QLatin1Char('0')));
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
    QStringList entries{QStringLiteral("lost+found")};
    for (int day = 10; day < 31; ++day)
        entries << QStringLiteral("dir-202403%1").arg(day);
    tab.setList(entries);
    QStringList files;
    for (int shot = 0; shot < 9; ++shot)
        files << writeShot(folder, 7 * shot);
    tab.addFetchedFiles(QStringLiteral("26.03.2024"), files.mid(0, 2));
    model.setFileList(files.mid(0, 2));
    model.emitProjectChanged();
    tab.addLocalFiles(files.mid(2, 1));
    tab.addFetchedFiles(QStringLiteral("28.03.2024"), files);
    tab.setTransferProgress(3, 7);
    tab.setResult(QStringLiteral("9 Messungen importiert, 3 Zeilen übersprungen, 1 Datei nicht lesbar"));
}

/// The picture goes to the folder that VENTARO_PICTURES names, if any: to be looked at.
void keep(QWidget &widget, const QString &name)
{
    const QString folder = qEnvironmentVariable("VENTARO_PICTURES");
    const QPixmap picture = widget.grab();
    QVERIFY(!picture.isNull());
    if (!folder.isEmpty())
        QVERIFY(picture.save(QDir(folder).filePath(name + QStringLiteral(".png"))));
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
    }
    return {};
}

} // namespace

class TestViewPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void dialogsFitTheScreen_data();
    void dialogsFitTheScreen();
};

void TestViewPictures::initTestCase()
{
    prepareApplication(*qobject_cast<QApplication *>(QCoreApplication::instance()));
}

void TestViewPictures::init()
{
    QSettings(QStringLiteral("Tarnwald"), QStringLiteral("Ventaro")).clear();
}

void TestViewPictures::nothingIsClipped_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("english");
    QTest::newRow("1280x800") << QSize(1280, 800) << true << false;
    QTest::newRow("1920x1080") << QSize(1920, 1080) << true << false;
    QTest::newRow("1280x800 without a box") << QSize(1280, 800) << false << false;
    QTest::newRow("1280x800, English") << QSize(1280, 800) << true << true;
}

void TestViewPictures::nothingIsClipped()
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
        model.setConnected(true);
        model.emitAppStateChanged();
        view.setDeviceAddress(QStringLiteral("192.168.4.1"));
        view.setRecordingRunning(true);
        view.findChild<QCheckBox *>(QStringLiteral("loggerCheckBoxA1"))->setChecked(true);
        for (int i = 0; i < 40; ++i) {
            view.logSample(i * 0.1, {1.5 * i, 2.25, 3.0, 4.0, 5.0});
            view.terminalReceived(QStringLiteral("%1;12.5;230.1;80;181.5;42\n").arg(i));
        }
        view.terminalSent(QStringLiteral("run=1\n"));
        view.showStatus(QStringLiteral("Die CSV-Datei konnte nicht gespeichert werden!"));
    }
    view.resize(size);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QString picture =
        QString::fromLatin1(QTest::currentDataTag()).remove(QLatin1Char(' ')) + QStringLiteral("-%1");
    for (int tab = 0; tab < view.tabs()->count(); ++tab) {
        view.tabs()->setCurrentIndex(tab);
        QTest::qWait(150);
        QCOMPARE(view.size(), size);
        keep(view, picture.arg(tab));
        QCOMPARE(clippedText(view.tabs()->widget(tab)), QString());
    }
    view.tabs()->setCurrentWidget(view.tabEvaluation());
    for (int page = 1; page < TabEvaluation::kNumPages; ++page) {
        view.tabEvaluation()->showPage(TabEvaluation::Page(page));
        QTest::qWait(150);
        keep(view, picture.arg(QStringLiteral("evaluation%1").arg(page)));
        QCOMPARE(clippedText(view.tabEvaluation()), QString());
    }
    QCOMPARE(clippedText(view.findChild<QToolBar *>(QStringLiteral("toolBar"))), QString());
    view.showProgress(QStringLiteral("Verbinden mit 192.168.4.1 ..."));
    keep(view, picture.arg(QStringLiteral("progress")));
    auto *menu = view.findChild<QMenu *>(QStringLiteral("menu"));
    menu->resize(menu->sizeHint());
    keep(*menu, picture.arg(QStringLiteral("menu")));
    QVERIFY(menu->sizeHint().height() <= size.height());
}

void TestViewPictures::dialogsFitTheScreen_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("buttons");
    QTest::newRow("quit") << QStringLiteral("Ventaro") << QStringLiteral("Vor dem Beenden Ventaro Projekt speichern?")
                          << int(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    QTest::newRow("tool") << QStringLiteral("Problem")
                          << QStringLiteral("The SCP tool could not be started!<br><br>Tool command: "
                                            "C:\\Program Files\\Ventaro\\winscp\\winscp.com /command \"open "
                                            "pi:password@192.168.4.1 -hostkey=* \" \"get -preservetime "
                                            "/media/usbstick/data/dir-20240305\" \"exit\"<br>Error: No such file")
                          << int(QMessageBox::Ok);
    QTest::newRow("output")
        << QStringLiteral("SCP Problem")
        << QStringLiteral("SCP was NOT successful!!\n\nPlease check output:")
               + QStringLiteral("Retrieving /media/usbstick/data/dir-20240305/08-00.bb\n").repeated(400)
        << int(QMessageBox::Ok);
}

void TestViewPictures::dialogsFitTheScreen()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    QFETCH(int, buttons);
    QMessageBox box;
    fillMessageBox(box, title, text, QMessageBox::StandardButtons(buttons));
    makePanel(box, QStringLiteral("help-circle-outline.png"));
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    keep(box, QStringLiteral("box-") + QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY2(QRect(800, 600, 401, 101).contains(box.width(), box.height()),
             qPrintable(QStringLiteral("%1 x %2").arg(box.width()).arg(box.height())));
    QCOMPARE(clippedText(&box), QString());

    IPAddressDialog dialog(QStringLiteral("192.168.4"), [](const QString &) { return false; });
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    keep(dialog, QStringLiteral("address"));
    QCOMPARE(clippedText(&dialog), QString());
}

QTEST_MAIN(TestViewPictures)
#include "tst_viewpictures.moc"
