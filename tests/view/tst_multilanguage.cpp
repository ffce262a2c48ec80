#include "device/mesotraconnector.h"
#include "model/model.h"
#include "tests/support/logcapture.h"
#include "tests/support/scriptedprompts.h"
#include "view/multilanguageutils.h"
#include "view/qttexts.h"
#include "view/tabproject.h"
#include "view/updatedialog.h"
#include "view/view.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QSettings>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {

void write(const QString &fileName, const QByteArray &content = "no translation")
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

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
        if (xml.isStartElement() && xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == QLatin1String("translation") && xml.readElementText() != source)
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
    model.setPhaseName(4, QStringLiteral("Auswerfen"));
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
    UpdateDialog dialog{&view, &connector, QString()};

    Bench()
    {
        describe(model);
        view.setRecordingRunning(true);
        view.tabs()->setCurrentIndex(2); // the sensors show the newest values while they are in front
        view.show();
        dialog.show();
        view.showProgress(QStringLiteral("192.168.4.1"));
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
    void init();
    void cleanup();
    void menuListsTheFilesFound_data();
    void menuListsTheFilesFound();
    void systemLanguageIsChecked();
    void unusableFileIsReported_data();
    void unusableFileIsReported();
    void everyTextSwitchesAndReturns();
    void numbersSwitchAndReturn();
    void phaseNamesFollowUntilEdited();
    void choiceIsRemembered();
};

void TestMultiLanguage::init()
{
    QSettings(QStringLiteral("Tarnwald"), QStringLiteral("Ventaro")).clear();
    QLocale::setDefault(QLocale(QLocale::German));
    installQtTexts(QStringLiteral("de"));
}

void TestMultiLanguage::cleanup()
{
    init();
}

void TestMultiLanguage::menuListsTheFilesFound_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("none") << QStringList() << QStringList();
    QTest::newRow("one") << QStringList{QStringLiteral("ventaro-en.qm")} << QStringList{QStringLiteral("English")};
    QTest::newRow("several, others between")
        << QStringList{QStringLiteral("ventaro-de.qm"), QStringLiteral("ventaro-fr.qm"),
                       QStringLiteral("ventaro.qm"),    QStringLiteral("ventaro-it.ts"),
                       QStringLiteral("qtbase-es.qm"),  QStringLiteral("ventaro-en.qm")}
        << QStringList{QStringLiteral("German"), QStringLiteral("English"), QStringLiteral("French")};
}

void TestMultiLanguage::menuListsTheFilesFound()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, texts);
    const QTemporaryDir folder;
    for (const QString &file : files)
        write(folder.filePath(file));
    QPixmap flag(8, 8);
    flag.fill(Qt::red);
    QVERIFY(flag.save(folder.filePath(QStringLiteral("en.png"))));
    QMainWindow window;
    MultiLanguageUtils languages(files.isEmpty() ? folder.filePath(QStringLiteral("missing")) : folder.path());
    const QMenu *menu = languages.createLanguageMenu(&window);
    QVERIFY(window.menuBar()->actions().contains(menu->menuAction()));
    QCOMPARE(menu->title(), QStringLiteral("Sprache"));
    QStringList shown;
    for (const auto *action : menu->actions()) {
        shown << action->text();
        QVERIFY(action->isCheckable());
        QVERIFY(action->actionGroup() && action->actionGroup()->isExclusive());
        QVERIFY(languages.isOffered(action->data().toString()));
        QCOMPARE(action->icon().pixmap(8).isNull(), action->data() != QStringLiteral("en"));
    }
    QCOMPARE(shown, texts);
}

void TestMultiLanguage::systemLanguageIsChecked()
{
    const QTemporaryDir folder;
    const QString system = MultiLanguageUtils::languageOfLocale(QLocale::system().name());
    write(folder.filePath(QStringLiteral("ventaro-%1.qm").arg(system)));
    write(folder.filePath(QStringLiteral("ventaro-xx.qm")));
    QMainWindow window;
    MultiLanguageUtils languages(folder.path());
    for (const auto *action : languages.createLanguageMenu(&window)->actions())
        QCOMPARE(action->isChecked(), action->data() == system);
}

void TestMultiLanguage::unusableFileIsReported_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("no translation") << QByteArray("ventaro");
    QTest::newRow("cut off") << QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
}

void TestMultiLanguage::unusableFileIsReported()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    if (!content.isEmpty())
        write(folder.filePath(QStringLiteral("ventaro-fr.qm")), content);
    MultiLanguageUtils languages(folder.path());
    const LogCapture log;
    languages.loadLanguage(QStringLiteral("fr"));
    QVERIFY(log.contains(QStringLiteral("Loading translator file ventaro-fr.qm")));
    const QStringList lines = log.all();
    QCOMPARE(lines.filter(QStringLiteral("translator failed!  filename=ventaro-fr.qm")).size(), 1);
    QVERIFY(!log.contains(QStringLiteral("OK: translator installed")));
    QCOMPARE(QCoreApplication::translate("View", "Sensoren"), QStringLiteral("Sensoren"));
    QCOMPARE(languages.language(), QStringLiteral("fr"));
    QCOMPARE(QLocale().language(), QLocale::French);
}

void TestMultiLanguage::everyTextSwitchesAndReturns()
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
    QCOMPARE(english.filter(QRegularExpression(QStringLiteral("[äöüÄÖÜß]"))), QStringList());
    QCOMPARE(QCoreApplication::translate("QDialogButtonBox", "Cancel"), QStringLiteral("Cancel"));
    bench.choose("actionLanguageGerman");
    QCOMPARE(textsOf(bench.view), german);
}

void TestMultiLanguage::numbersSwitchAndReturn()
{
    Bench bench;
    const auto *time = bench.view.findChild<QDoubleSpinBox *>(QStringLiteral("spinBoxInjectionTime"));
    QVERIFY(time);
    const struct
    {
        const char *action;
        QChar point;
    } steps[] = {{"actionLanguageEnglish", QLatin1Char('.')}, {"actionLanguageGerman", QLatin1Char(',')}};
    for (const auto &step : steps) {
        bench.choose(step.action);
        QCOMPARE(time->text(), QStringLiteral("1") + step.point + QStringLiteral("250 s"));
        QCOMPARE(bench.text("sensorValue"), QStringLiteral("1") + step.point + QLatin1Char('5'));
        for (const auto *box : bench.view.findChildren<QAbstractSpinBox *>())
            QCOMPARE(box->locale().decimalPoint(), step.point);
    }
}

void TestMultiLanguage::phaseNamesFollowUntilEdited()
{
    Bench bench;
    const bool modified = bench.model.isProjectModified();
    const auto *edit = bench.view.findChild<QLineEdit *>(QStringLiteral("lineEditPhase1"));
    bench.choose("actionLanguageEnglish");
    QCOMPARE(bench.model.phaseName(0), QStringLiteral("Mould closing"));
    QCOMPARE(edit->text(), QStringLiteral("Mould closing"));
    QCOMPARE(bench.model.phaseName(4), QStringLiteral("Auswerfen"));
    bench.choose("actionLanguageGerman");
    QCOMPARE(bench.model.phaseName(0), QStringLiteral("WZ schließen"));
    QCOMPARE(edit->text(), QStringLiteral("WZ schließen"));
    QCOMPARE(bench.model.phaseName(4), QStringLiteral("Auswerfen"));
    QCOMPARE(bench.model.isProjectModified(), modified);
}

void TestMultiLanguage::choiceIsRemembered()
{
    {
        Bench bench;
        bench.choose("actionLanguageEnglish");
    }
    QLocale::setDefault(QLocale(QLocale::German));
    {
        const Bench bench;
        QCOMPARE(bench.view.tabs()->tabText(1), QStringLiteral("Project"));
        QVERIFY(bench.view.findChild<QAction *>(QStringLiteral("actionLanguageEnglish"))->isChecked());
        QCOMPARE(QLocale().decimalPoint(), QLatin1Char('.'));
    }
    QSettings(QStringLiteral("Tarnwald"), QStringLiteral("Ventaro"))
        .setValue(QStringLiteral("language"), QStringLiteral("xx"));
    QLocale::setDefault(QLocale(QLocale::German));
    const Bench bench;
    QCOMPARE(bench.view.tabs()->tabText(1), QStringLiteral("Projekt"));
}

QTEST_MAIN(TestMultiLanguage)
#include "tst_multilanguage.moc"
