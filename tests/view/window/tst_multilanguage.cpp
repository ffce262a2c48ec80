#include "device/mesotraconnector.h"
#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"
#include "tests/support/scriptedprompts.h"
#include "view/box/updatedialog.h"
#include "view/project/tabproject.h"
#include "view/sensors/sensortreemodel.h"
#include "view/window/multilanguageutils.h"
#include "view/window/qttexts.h"
#include "view/window/view.h"

#include <QtWidgets>

namespace {

/// Every text that the user may read, in a fixed order.
QStringList textsOf(const QWidget &window)
{
    QStringList texts;
    for (const auto *action : window.findChildren<QAction *>())
        texts << action->text() << action->toolTip() << action->statusTip();
    for (const auto *menu : window.findChildren<QMenu *>())
        texts << menu->title();
    for (const auto *widget : window.findChildren<QWidget *>())
        texts << widget->toolTip() << widget->accessibleName() << widget->windowTitle();
    for (const auto *label : window.findChildren<QLabel *>())
        texts << label->text();
    for (const auto *button : window.findChildren<QAbstractButton *>())
        texts << button->text();
    for (const auto *group : window.findChildren<QGroupBox *>())
        texts << group->title();
    for (const auto *edit : window.findChildren<QLineEdit *>()) {
        texts << edit->placeholderText();
        if (!qobject_cast<const QAbstractSpinBox *>(edit->parent())) // empty until it is first shown
            texts << edit->text();
    }
    for (const auto *bar : window.findChildren<QTabBar *>()) {
        for (int i = 0; i < bar->count(); ++i)
            texts << bar->tabText(i);
    }
    for (const auto *box : window.findChildren<QComboBox *>()) {
        for (int i = 0; i < box->count(); ++i)
            texts << box->itemText(i);
    }
    for (const auto *view : window.findChildren<QAbstractItemView *>()) {
        for (int i = 0; view->model() && i < view->model()->columnCount(); ++i)
            texts << view->model()->headerData(i, Qt::Horizontal).toString();
    }
    return texts;
}

/// The German texts that read differently in English.
QSet<QString> germanTexts()
{
    QFile file(QStringLiteral(VENTARO_TEST_DATA "/../../resources/translations/ventaro-en.ts"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSet<QString> texts;
    QString source;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
        if (xml.isStartElement() && xml.name() == "source"_s)
            source = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == "translation"_s && xml.readElementText() != source)
            texts.insert(source);
    }
    return texts;
}

void describe(Model &model)
{
    ProjectData project;
    project.injectionTime = 1.25;
    project.pressTime = 1234.5;
    model.setProjectData(project);
    model.setPhaseName(4, "Auswerfen"_s);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        model.appendSample(sensor, model.appendMeasurement(sensor), 1.5);
    model.setConnected(true);
    model.emitAppStateChanged();
    model.emitProjectChanged();
    model.emitDataChanged();
}

/// The window as in use, with everything open that can be.
struct Bench
{
    Model model{QString()};
    View view{&model, std::make_unique<ScriptedPrompts>()};
    MesotraConnector connector;
    UpdateDialog dialog{&view, {}, &connector, QString()};

    Bench()
    {
        describe(model);
        view.setRecordingRunning(true);
        view.tabs()->setCurrentIndex(2); // the sensors show the newest values while they are in front
        view.show();
        dialog.show();
        view.showProgress("192.168.4.1"_s);
        settle();
    }

    static void settle()
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        QTest::qWait(60); // longer than changes of data are bundled
    }

    void choose(const char *action)
    {
        view.findChild<QAction *>(QLatin1String(action))->trigger();
        settle();
    }

    [[nodiscard]] QString text(const char *label) const
    {
        return view.findChild<QLabel *>(QLatin1String(label))->text();
    }
};

} // namespace

class TestMultiLanguage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings("Tarnwald"_s, "Ventaro"_s).clear();
        QLocale::setDefault(QLocale(QLocale::German));
        installQtTexts("de"_s);
    }

    void cleanup() { init(); }

    void menuListsTheFilesFound_data()
    {
        columns<QStringList, QStringList>("files", "texts");
        row("none", QStringList(), QStringList());
        row("one", QStringList{"ventaro-en.qm"_s}, QStringList{"English"_s});
        row("several, others between",
            QStringList{"ventaro-de.qm"_s, "ventaro-fr.qm"_s, "ventaro.qm"_s, "ventaro-it.ts"_s, "qtbase-es.qm"_s,
                        "ventaro-en.qm"_s},
            QStringList{"German"_s, "English"_s, "French"_s});
    }

    void menuListsTheFilesFound()
    {
        QFETCH(QStringList, files);
        const QTemporaryDir folder;
        for (const QString &file : files)
            writeFile(folder.filePath(file), "no translation");
        QPixmap flag(8, 8);
        flag.fill(Qt::red);
        QVERIFY(flag.save(folder.filePath("en.png"_s)));
        QMainWindow window;
        MultiLanguageUtils languages(files.isEmpty() ? folder.filePath("missing"_s) : folder.path());
        const QMenu *menu = languages.createLanguageMenu(&window);
        QVERIFY(window.menuBar()->actions().contains(menu->menuAction()));
        QCOMPARE(menu->title(), "Sprache"_s);
        QStringList shown;
        for (const auto *action : menu->actions()) {
            shown << action->text();
            QVERIFY(action->isCheckable());
            QVERIFY(action->actionGroup() && action->actionGroup()->isExclusive());
            QVERIFY(languages.isOffered(action->data().toString()));
            QCOMPARE(action->icon().pixmap(8).isNull(), action->data() != "en"_s);
        }
        QTEST(shown, "texts");
    }

    void systemLanguageIsChecked()
    {
        const QTemporaryDir folder;
        const QString system = MultiLanguageUtils::languageOfLocale(QLocale::system().name());
        writeFile(folder.filePath("ventaro-%1.qm"_s.arg(system)), "no translation");
        writeFile(folder.filePath("ventaro-xx.qm"_s), "no translation");
        QMainWindow window;
        MultiLanguageUtils languages(folder.path());
        for (const auto *action : languages.createLanguageMenu(&window)->actions())
            QCOMPARE(action->isChecked(), action->data() == system);
    }

    void unusableFileIsReported_data()
    {
        columns<QByteArray>("content");
        row("missing", QByteArray());
        row("no translation", "ventaro"_ba);
        row("cut off", QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd"));
    }

    void unusableFileIsReported()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        if (!content.isEmpty())
            writeFile(folder.filePath("ventaro-fr.qm"_s), content);
        MultiLanguageUtils languages(folder.path());
        const LogCapture log;
        languages.loadLanguage("fr"_s);
        QVERIFY(log.contains("Loading translator file ventaro-fr.qm"_s));
        const QStringList lines = log.all();
        QCOMPARE(lines.filter("translator failed!  filename=ventaro-fr.qm"_s).size(), 1);
        QVERIFY(!log.contains("OK: translator installed"_s));
        QCOMPARE(QCoreApplication::translate("View", "Sensoren"), "Sensoren"_s);
        QCOMPARE(languages.language(), "fr"_s);
        QCOMPARE(QLocale().language(), QLocale::French);
    }

    void everyTextSwitchesAndReturns()
    {
        Bench bench;
        const QStringList german = textsOf(bench.view);
        const QSet<QString> translated = germanTexts();
        QVERIFY(translated.size() > 200);
        bench.choose("actionLanguageEnglish");
        const QStringList english = textsOf(bench.view);
        QCOMPARE(english.size(), german.size());
        for (const QString &text : english)
            QVERIFY2(!translated.contains(text), qPrintable(text));
        QCOMPARE(english.filter(QRegularExpression("[äöüÄÖÜß]"_s)).join("\n"_s), QString());
        QCOMPARE(QCoreApplication::translate("QDialogButtonBox", "Cancel"), "Cancel"_s);
        bench.choose("actionLanguageGerman");
        QCOMPARE(textsOf(bench.view), german);
    }

    void numbersSwitchAndReturn()
    {
        Bench bench;
        const auto *time = bench.view.findChild<QDoubleSpinBox *>("spinBoxInjectionTime"_s);
        QVERIFY(time);
        const struct
        {
            const char *action;
            QChar point;
        } steps[] = {{"actionLanguageEnglish", QLatin1Char('.')}, {"actionLanguageGerman", QLatin1Char(',')}};
        for (const auto &step : steps) {
            bench.choose(step.action);
            QCOMPARE(time->text(), "1"_s + step.point + "250 s"_s);
            const auto *tree = bench.view.findChild<SensorTreeModel *>();
            QCOMPARE(tree->indexOf(0, SensorTreeModel::ValueColumn).data().toString(), "1"_s + step.point + "50"_s);
            auto *plot = bench.view.findChild<OsziWidget *>("osziWidget1"_s);
            plot->showMouseMarker(OsziWidget::kLeftMargin);
            QCOMPARE(plot->findChild<QLabel *>("mouseReadOut"_s)->text(), "1.5"_s); // in every language
            for (const auto *box : bench.view.findChildren<QAbstractSpinBox *>())
                QCOMPARE(box->locale().decimalPoint(), step.point);
        }
    }

    void phaseNamesFollowUntilEdited()
    {
        Bench bench;
        const bool modified = bench.model.isProjectModified();
        const auto *edit = bench.view.findChild<QLineEdit *>("lineEditPhase1"_s);
        bench.choose("actionLanguageEnglish");
        QCOMPARE(bench.model.phaseName(0), "Mould closing"_s);
        QCOMPARE(edit->text(), "Mould closing"_s);
        QCOMPARE(bench.model.phaseName(4), "Auswerfen"_s);
        bench.choose("actionLanguageGerman");
        QCOMPARE(bench.model.phaseName(0), "WZ schließen"_s);
        QCOMPARE(edit->text(), "WZ schließen"_s);
        QCOMPARE(bench.model.phaseName(4), "Auswerfen"_s);
        QCOMPARE(bench.model.isProjectModified(), modified);
    }

    void choiceIsRemembered()
    {
        {
            Bench bench;
            bench.choose("actionLanguageEnglish");
        }
        QLocale::setDefault(QLocale(QLocale::German));
        {
            const Bench bench;
            QCOMPARE(bench.view.tabs()->tabText(1), "Project"_s);
            QVERIFY(bench.view.findChild<QAction *>("actionLanguageEnglish"_s)->isChecked());
            QCOMPARE(QLocale().decimalPoint(), QLatin1Char('.'));
        }
        QSettings("Tarnwald"_s, "Ventaro"_s).setValue("language"_s, "xx"_s);
        QLocale::setDefault(QLocale(QLocale::German));
        const Bench bench;
        QCOMPARE(bench.view.tabs()->tabText(1), "Projekt"_s);
    }
};

QTEST_MAIN(TestMultiLanguage)
#include "tst_multilanguage.moc"
