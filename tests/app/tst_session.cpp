#include "app/session.h"
#include "app/startup.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/window/view.h"

#include <QApplication>
#include <QDialog>
#include <QTcpServer>
#include <QTimer>

#include <functional>

namespace {

View *shownView()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *view = qobject_cast<View *>(widget);
        if (view && view->isVisible())
            return view;
    }
    return nullptr;
}

void dismissQuestions()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *dialog = qobject_cast<QDialog *>(widget);
        if (dialog && dialog->isVisible())
            dialog->reject();
    }
}

/// Runs a session and calls `steps` once the window is shown; ends the event loop with `result` after that.
int runWith(SessionOptions options, int result, const std::function<void(View *)> &steps)
{
    options.splashTime = std::chrono::milliseconds(0);
    QTimer questions;
    QObject::connect(&questions, &QTimer::timeout, &questions, dismissQuestions);
    questions.start(20);
    QTimer start;
    QObject::connect(&start, &QTimer::timeout, &start, [&] {
        View *view = shownView();
        if (!view)
            return;
        start.stop();
        steps(view);
        QCoreApplication::exit(result);
    });
    start.start(0);
    return runSession(*qApp, options);
}

} // namespace

class TestSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { prepareApplication(*qApp); }

    void exitStatusIsAlwaysZero()
    {
        bool shown = false;
        QCOMPARE(runWith({}, 3, [&shown](const View *view) { shown = view != nullptr; }), 0);
        QVERIFY(shown);
    }

    void closingTheWindowDoesNotEndTheProgram()
    {
        bool stillRunning = false;
        (void)runWith({}, 0, [&stillRunning](View *view) {
            QTimer::singleShot(150, view, [&stillRunning] { stillRunning = true; });
            view->close(); // whatever it asks is answered with "no"
            view->hide();  // as a window manager may do, so that no window is left
            QTRY_VERIFY(stillRunning);
        });
        QVERIFY(stillRunning);
    }

    void connectsAtOnceOnlyOnRequest_data()
    {
        columns<bool>("connectAtOnce");
        row("by the user", false);
        row("at once", true);
    }

    void connectsAtOnceOnlyOnRequest()
    {
        QFETCH(bool, connectAtOnce);
        QTcpServer box;
        QVERIFY(box.listen(QHostAddress::LocalHost));
        SessionOptions options;
        options.controller.deviceAddress = "127.0.0.1"_s;
        options.controller.port = box.serverPort();
        options.connectAtOnce = connectAtOnce;
        (void)runWith(options, 0, [&box](View *) { (void)box.waitForNewConnection(200); });
        QCOMPARE(box.hasPendingConnections(), connectAtOnce);
    }
};

QTEST_MAIN(TestSession)

#include "tst_session.moc"
