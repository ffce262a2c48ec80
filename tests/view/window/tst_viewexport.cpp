#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "tests/support/faildevice.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"
#include "tests/support/scriptedprompts.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/terminal/loggertext.h"
#include "view/terminal/terminalfile.h"
#include "view/window/view.h"

#include <QtWidgets>

using ViewSignal = void (View::*)();
Q_DECLARE_METATYPE(ViewSignal)

class TestViewExport : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_view.reset();
        m_folder = std::make_unique<QTemporaryDir>();
        m_model = std::make_unique<Model>(QString());
        m_view = std::make_unique<View>(m_model.get(), scripted(m_prompts));
    }

    void terminalFile()
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        const QDateTime time(QDate(2026, 3, 5), QTime(7, 8, 9));
        QVERIFY(writeTerminal(buffer, "< 21 °C\n> run=1"_s, time));
        QCOMPARE(QString::fromUtf8(buffer.data()),
                 "Ventaro - terminal: saved on 05.03.2026 at 07:08:09\n\n< 21 °C\n> run=1"_s);
        FailDevice full(10);
        QVERIFY(!writeTerminal(full, QString(100000, QLatin1Char('x')), time));
    }

    void saves_data()
    {
        // written: empty: an error
        columns<ViewSignal, QString, QString, QString>("save", "chosen", "written", "reason");
        const QString noFolder = "/missing ist nicht da."_s;
        const auto terminal = ViewSignal(&View::saveTerminal);
        row("terminal", terminal, "t", "t.txt", QString());
        row("terminal with suffix", terminal, "t.txt", "t.txt", QString());
        row("terminal, no such folder", terminal, "missing/t", QString(), noFolder);
        const auto csv = ViewSignal(&View::saveCSV);
        row("data", csv, "d", "d.csv", QString());
        row("data, capitals", csv, "d.CSV", "d.CSV.csv", QString());
        row("data, no such folder", csv, "missing/d.csv", QString(), noFolder);
        const auto oszi = ViewSignal(&View::saveOszi);
        for (const char *offered : {"o.png", "o.bmp", "o.jpg", "o.tif"})
            row(offered, oszi, QString::fromLatin1(offered), QString::fromLatin1(offered), QString());
        for (const char *refused : {"o.xyz", "o"})
            row(refused, oszi, QString::fromLatin1(refused), QString(), "gehört zu keinem Bildformat"_s);
        row("picture, no such folder", oszi, "missing/o.png", QString(), noFolder);
    }

    void saves()
    {
        QFETCH(ViewSignal, save);
        QFETCH(QString, chosen);
        QFETCH(QString, written);
        QFETCH(QString, reason);
        m_view->terminalSent("run=1\n"_s);
        m_view->terminalReceived("run=1\n"_s);
        m_prompts->saveNames = {path(chosen)};
        const LogCapture log;
        emit(m_view.get()->*save)();
        QCOMPARE(log.contains("Error saving "_s), written.isEmpty());
        const QString status = m_view->statusBar()->currentMessage();
        QVERIFY2(status.contains(written.isEmpty() ? reason : path(written)), qPrintable(status));
        QVERIFY(m_prompts->messages.empty());
        const QString dialog = m_prompts->fileDialogs.join(QLatin1Char('/'));
        const QByteArray text = contentOf(path(written));
        if (save == &View::saveTerminal) {
            QCOMPARE(dialog, "Save terminal|ASCII File (*.txt)"_s);
            QVERIFY(written.isEmpty() || text.startsWith("Ventaro - terminal: saved on "));
            QVERIFY(written.isEmpty() || text.endsWith("\n\n> run=1\n< run=1"));
            return;
        }
        if (save == &View::saveCSV) {
            QCOMPARE(dialog, "Save data logger file|CSV - Comma separated values (*.csv)"_s);
            QVERIFY(written.isEmpty() || text.startsWith("Dateiname: "));
        } else {
            QCOMPARE(dialog, "Save oscilloscope|BMP (*.bmp);;JPG (*.jpg);;PNG (*.png);;TIFF (*.tif)"_s);
            QVERIFY(written.isEmpty() || QPixmap(path(written)).size() == m_view->tabOszi()->row(0)->size());
        }
    }

    void appendedSuffixAsksBeforeOverwriting()
    {
        const QString existing = path("t.txt"_s);
        writeFile(existing, "old");
        m_prompts->saveNames = {path("t"_s), path("t"_s)};
        m_prompts->answers = {QMessageBox::No, QMessageBox::Yes};
        emit m_view->saveTerminal();
        QCOMPARE(contentOf(existing), "old"_ba);
        emit m_view->saveTerminal();
        QVERIFY(contentOf(existing).startsWith("Ventaro"));
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
