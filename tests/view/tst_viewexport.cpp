#include "model/model.h"
#include "plots/osziwidget.h"
#include "tests/support/faildevice.h"
#include "tests/support/logcapture.h"
#include "tests/support/scriptedprompts.h"
#include "view/exportfiles.h"
#include "view/loggertext.h"
#include "view/taboszilloscope.h"
#include "view/view.h"

#include <QBuffer>
#include <QCheckBox>
#include <QDateTime>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray content(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<no file>");
}

} // namespace

class TestViewExport : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void terminalFile();
    void terminalWriteErrorIsReported();
    void saveTerminal_data();
    void saveTerminal();
    void appendedSuffixAsksBeforeOverwriting();
    void saveOszi_data();
    void saveOszi();
    void saveCsv_data();
    void saveCsv();
    void busyModelRefusesExports();
    void sampleLine();
    void headlineIsWrittenWhereColumnsBegin();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Model> m_model;
    std::unique_ptr<View> m_view;
    ScriptedPrompts *m_prompts = nullptr;
};

void TestViewExport::init()
{
    m_view.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_model = std::make_unique<Model>(QString());
    auto script = std::make_unique<ScriptedPrompts>();
    m_prompts = script.get();
    m_view = std::make_unique<View>(m_model.get(), std::move(script));
}

void TestViewExport::terminalFile()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QDateTime time(QDate(2026, 3, 5), QTime(7, 8, 9));
    QVERIFY(writeTerminal(buffer, QStringLiteral("< 21 °C\n> run=1"), time));
    QCOMPARE(QString::fromUtf8(buffer.data()),
             QStringLiteral("Ventaro - terminal: saved on 05.03.2026 at 07:08:09\n\n< 21 °C\n> run=1"));
}

void TestViewExport::terminalWriteErrorIsReported()
{
    FailDevice device(10);
    QVERIFY(!writeTerminal(device, QString(100000, QLatin1Char('x')), QDateTime::currentDateTime()));
}

void TestViewExport::saveTerminal_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("written"); // empty: an error
    QTest::newRow("plain") << QStringLiteral("t") << QStringLiteral("t.txt");
    QTest::newRow("with suffix") << QStringLiteral("t.txt") << QStringLiteral("t.txt");
    QTest::newRow("no such folder") << QStringLiteral("missing/t") << QString();
}

void TestViewExport::saveTerminal()
{
    QFETCH(QString, chosen);
    QFETCH(QString, written);
    m_view->terminalSent(QStringLiteral("run=1\n"));
    m_view->terminalReceived(QStringLiteral("run=1\n"));
    m_prompts->saveNames = {path(chosen)};
    const LogCapture log;
    emit m_view->saveTerminal();
    QCOMPARE(m_prompts->fileDialogs, QStringList(QStringLiteral("Save terminal|ASCII File (*.txt)")));
    QCOMPARE(log.contains(QStringLiteral("Error saving terminal content!")), written.isEmpty());
    QVERIFY(m_prompts->messages.empty());
    if (written.isEmpty())
        return;
    const QString text = QString::fromUtf8(content(path(written)));
    QVERIFY(text.startsWith(QStringLiteral("Ventaro - terminal: saved on ")));
    QVERIFY2(text.endsWith(QStringLiteral("\n\n> run=1\n< run=1")), qPrintable(text));
}

void TestViewExport::appendedSuffixAsksBeforeOverwriting()
{
    QFile existing(path(QStringLiteral("t.txt")));
    QVERIFY(existing.open(QIODevice::WriteOnly) && existing.write("old") == 3);
    existing.close();
    m_prompts->saveNames = {path(QStringLiteral("t")), path(QStringLiteral("t"))};
    m_prompts->answers = {QMessageBox::No, QMessageBox::Yes};
    emit m_view->saveTerminal();
    QCOMPARE(content(existing.fileName()), QByteArray("old"));
    emit m_view->saveTerminal();
    QVERIFY(content(existing.fileName()).startsWith("Ventaro"));
}

void TestViewExport::saveOszi_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<bool>("works");
    QTest::newRow("png") << QStringLiteral("o.png") << true;
    for (const QString &offered : {QStringLiteral("o.bmp"), QStringLiteral("o.jpg"), QStringLiteral("o.tif")})
        QTest::newRow(qPrintable(offered)) << offered << true;
    QTest::newRow("unknown format") << QStringLiteral("o.xyz") << false;
    QTest::newRow("no suffix") << QStringLiteral("o") << false;
    QTest::newRow("no such folder") << QStringLiteral("missing/o.png") << false;
}

void TestViewExport::saveOszi()
{
    QFETCH(QString, chosen);
    QFETCH(bool, works);
    m_prompts->saveNames = {path(chosen)};
    const LogCapture log;
    emit m_view->saveOszi();
    QCOMPARE(m_prompts->fileDialogs,
             QStringList(QStringLiteral("Save oscilloscope|BMP (*.bmp);;JPG (*.jpg);;PNG (*.png);;TIFF (*.tif)")));
    QCOMPARE(log.contains(QStringLiteral("Error saving oscilloscope content!")), !works);
    QCOMPARE(m_view->statusBar()->currentMessage().isEmpty(), works);
    if (works)
        QCOMPARE(QPixmap(path(chosen)).size(), m_view->tabOszi()->row(0)->size());
}

void TestViewExport::saveCsv_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("written"); // empty: an error
    QTest::newRow("plain") << QStringLiteral("d") << QStringLiteral("d.csv");
    QTest::newRow("capitals") << QStringLiteral("d.CSV") << QStringLiteral("d.CSV.csv");
    QTest::newRow("no such folder") << QStringLiteral("missing/d.csv") << QString();
}

void TestViewExport::saveCsv()
{
    QFETCH(QString, chosen);
    QFETCH(QString, written);
    m_prompts->saveNames = {path(chosen)};
    const LogCapture log;
    emit m_view->saveCSV();
    QCOMPARE(m_prompts->fileDialogs,
             QStringList(QStringLiteral("Save data logger file|CSV - Comma separated values (*.csv)")));
    QCOMPARE(log.contains(QStringLiteral("Error saving CSV!")), written.isEmpty());
    QCOMPARE(m_view->statusBar()->currentMessage().isEmpty(), !written.isEmpty());
    QVERIFY(m_prompts->messages.empty());
    if (!written.isEmpty())
        QVERIFY(content(path(written)).startsWith("Dateiname: "));
}

void TestViewExport::busyModelRefusesExports()
{
    bool tried = false;
    m_model->setYield([&](int) {
        tried = true;
        emit m_view->saveCSV();
        emit m_view->saveTerminal();
        emit m_view->saveOszi();
    });
    const int series = m_model->appendMeasurement(0);
    for (int i = 0; i < 400000 && !tried; ++i)
        m_model->appendSample(0, series, i * 0.37);
    QVERIFY(m_model->saveCsv(path(QStringLiteral("big.csv"))));
    m_model->setYield({});
    QVERIFY(tried);
    QVERIFY(m_prompts->fileDialogs.isEmpty());
}

void TestViewExport::sampleLine()
{
    const std::array<double, kNumSensors> values{1.5, -2.0, 1234567.0, 0.0, 12345.0};
    QLocale::setDefault(QLocale(QLocale::German));
    const QString line = loggerSampleText(3600.1, values, {true, false, true, false, true});
    QLocale::setDefault(QLocale::c());
    QCOMPARE(line, QStringLiteral("3600,100\t1,5\t1,23457e+06\t12345"));
}

void TestViewExport::headlineIsWrittenWhereColumnsBegin()
{
    QLocale::setDefault(QLocale::c());
    auto *first = m_view->findChild<QCheckBox *>(QStringLiteral("loggerCheckBoxA0"));
    auto *fifth = m_view->findChild<QCheckBox *>(QStringLiteral("loggerCheckBoxA4"));
    const auto *edit = m_view->findChild<QPlainTextEdit *>(QStringLiteral("editLogger"));
    m_view->logSample(0.1, {1, 2, 3, 4, 5}); // no column yet
    first->setChecked(true);
    m_view->logSample(0.2, {1, 2, 3, 4, 5});
    fifth->setChecked(true);
    m_view->logSample(0.3, {6, 7, 8, 9, 10});
    m_view->setRecordingRunning(true);
    const QString headline = QStringLiteral("time\tSensor 1\n------\t--\n");
    QCOMPARE(edit->toPlainText() + QLatin1Char('\n'),
             headline + QStringLiteral("0.200\t1\n") + headline + QStringLiteral("0.300\t6\t10\n") + headline);
    emit m_view->clearLogger();
    QCOMPARE(edit->toPlainText() + QLatin1Char('\n'), headline);
    fifth->setChecked(false);
    first->setChecked(false);
    emit m_view->clearLogger();
    QCOMPARE(edit->toPlainText(), QString());
}

QTEST_MAIN(TestViewExport)
#include "tst_viewexport.moc"
