#include "model/model.h"
#include "plots/osziwidget.h"
#include "tests/support/faildevice.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"
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
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "<no file>"_ba;
}

} // namespace

class TestViewExport : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_view.reset();
        m_folder = std::make_unique<QTemporaryDir>();
        m_model = std::make_unique<Model>(QString());
        auto script = std::make_unique<ScriptedPrompts>();
        m_prompts = script.get();
        m_view = std::make_unique<View>(m_model.get(), std::move(script));
    }

    void terminalFile()
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        const QDateTime time(QDate(2026, 3, 5), QTime(7, 8, 9));
        QVERIFY(writeTerminal(buffer, "< 21 °C\n> run=1"_s, time));
        QCOMPARE(QString::fromUtf8(buffer.data()),
                 "Ventaro - terminal: saved on 05.03.2026 at 07:08:09\n\n< 21 °C\n> run=1"_s);
    }

    void terminalWriteErrorIsReported()
    {
        FailDevice device(10);
        QVERIFY(!writeTerminal(device, QString(100000, QLatin1Char('x')), QDateTime::currentDateTime()));
    }

    void saveTerminal_data()
    {
        // written: empty: an error
        columns<QString, QString>("chosen", "written");
        row("plain", "t", "t.txt");
        row("with suffix", "t.txt", "t.txt");
        row("no such folder", "missing/t", QString());
    }

    void saveTerminal()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, written);
        m_view->terminalSent("run=1\n"_s);
        m_view->terminalReceived("run=1\n"_s);
        m_prompts->saveNames = {path(chosen)};
        const LogCapture log;
        emit m_view->saveTerminal();
        QCOMPARE(m_prompts->fileDialogs, QStringList("Save terminal|ASCII File (*.txt)"_s));
        QCOMPARE(log.contains("Error saving terminal content!"_s), written.isEmpty());
        QVERIFY(m_prompts->messages.empty());
        if (written.isEmpty())
            return;
        const QString text = QString::fromUtf8(content(path(written)));
        QVERIFY(text.startsWith("Ventaro - terminal: saved on "_s));
        QVERIFY2(text.endsWith("\n\n> run=1\n< run=1"_s), qPrintable(text));
    }

    void appendedSuffixAsksBeforeOverwriting()
    {
        QFile existing(path("t.txt"_s));
        QVERIFY(existing.open(QIODevice::WriteOnly) && existing.write("old") == 3);
        existing.close();
        m_prompts->saveNames = {path("t"_s), path("t"_s)};
        m_prompts->answers = {QMessageBox::No, QMessageBox::Yes};
        emit m_view->saveTerminal();
        QCOMPARE(content(existing.fileName()), "old"_ba);
        emit m_view->saveTerminal();
        QVERIFY(content(existing.fileName()).startsWith("Ventaro"));
    }

    void saveOszi_data()
    {
        columns<QString, bool>("chosen", "works");
        row("png", "o.png", true);
        for (const QString &offered : {"o.bmp"_s, "o.jpg"_s, "o.tif"_s})
            row(qPrintable(offered), offered, true);
        row("unknown format", "o.xyz", false);
        row("no suffix", "o", false);
        row("no such folder", "missing/o.png", false);
    }

    void saveOszi()
    {
        QFETCH(QString, chosen);
        QFETCH(bool, works);
        m_prompts->saveNames = {path(chosen)};
        const LogCapture log;
        emit m_view->saveOszi();
        QCOMPARE(m_prompts->fileDialogs,
                 QStringList("Save oscilloscope|BMP (*.bmp);;JPG (*.jpg);;PNG (*.png);;TIFF (*.tif)"_s));
        QCOMPARE(log.contains("Error saving oscilloscope content!"_s), !works);
        QCOMPARE(m_view->statusBar()->currentMessage().isEmpty(), works);
        if (works)
            QCOMPARE(QPixmap(path(chosen)).size(), m_view->tabOszi()->row(0)->size());
    }

    void saveCsv_data()
    {
        // written: empty: an error
        columns<QString, QString>("chosen", "written");
        row("plain", "d", "d.csv");
        row("capitals", "d.CSV", "d.CSV.csv");
        row("no such folder", "missing/d.csv", QString());
    }

    void saveCsv()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, written);
        m_prompts->saveNames = {path(chosen)};
        const LogCapture log;
        emit m_view->saveCSV();
        QCOMPARE(m_prompts->fileDialogs, QStringList("Save data logger file|CSV - Comma separated values (*.csv)"_s));
        QCOMPARE(log.contains("Error saving CSV!"_s), written.isEmpty());
        QCOMPARE(m_view->statusBar()->currentMessage().isEmpty(), !written.isEmpty());
        QVERIFY(m_prompts->messages.empty());
        if (!written.isEmpty())
            QVERIFY(content(path(written)).startsWith("Dateiname: "));
    }

    void busyModelRefusesExports()
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
        QVERIFY(m_model->saveCsv(path("big.csv"_s)));
        m_model->setYield({});
        QVERIFY(tried);
        QVERIFY(m_prompts->fileDialogs.isEmpty());
    }

    void sampleLine()
    {
        const std::array<double, kNumSensors> values{1.5, -2.0, 1234567.0, 0.0, 12345.0};
        QLocale::setDefault(QLocale(QLocale::German));
        const QString line = loggerSampleText(3600.1, values, {true, false, true, false, true});
        QLocale::setDefault(QLocale::c());
        QCOMPARE(line, "3600,100\t1,5\t1,23457e+06\t12345"_s);
    }

    void headlineIsWrittenWhereColumnsBegin()
    {
        QLocale::setDefault(QLocale::c());
        auto *first = m_view->findChild<QCheckBox *>("loggerCheckBoxA0"_s);
        auto *fifth = m_view->findChild<QCheckBox *>("loggerCheckBoxA4"_s);
        const auto *edit = m_view->findChild<QPlainTextEdit *>("editLogger"_s);
        m_view->logSample(0.1, {1, 2, 3, 4, 5}); // no column yet
        first->setChecked(true);
        m_view->logSample(0.2, {1, 2, 3, 4, 5});
        fifth->setChecked(true);
        m_view->logSample(0.3, {6, 7, 8, 9, 10});
        m_view->setRecordingRunning(true);
        const QString headline = "time\tSensor 1\n------\t--\n"_s;
        QCOMPARE(edit->toPlainText() + QLatin1Char('\n'),
                 headline + "0.200\t1\n"_s + headline + "0.300\t6\t10\n"_s + headline);
        emit m_view->clearLogger();
        QCOMPARE(edit->toPlainText() + QLatin1Char('\n'), headline);
        fifth->setChecked(false);
        first->setChecked(false);
        emit m_view->clearLogger();
        QCOMPARE(edit->toPlainText(), QString());
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Model> m_model;
    std::unique_ptr<View> m_view;
    ScriptedPrompts *m_prompts = nullptr;
};

QTEST_MAIN(TestViewExport)
#include "tst_viewexport.moc"
