#include "kit/material/qtmaterialstyle.h"
#include "kit/material/qtmaterialtheme.h"
#include "kit/small/progressindicator.h"
#include "tests/support/rows.h"

namespace {

QImage picture(ProgressIndicator &indicator)
{
    return indicator.grab().toImage();
}

void useTheme(const QColor &color)
{
    auto theme = std::make_unique<QtMaterialTheme>();
    for (const QString &key : QtMaterialTheme::keys())
        theme->setColor(key, color);
    QtMaterialStyle::instance().setTheme(std::move(theme));
}

} // namespace

class TestProgressIndicator : public QObject
{
    Q_OBJECT

private slots:
    void turnsOnlyInSight()
    {
        useTheme(Qt::darkBlue);
        ProgressIndicator indicator;
        indicator.startAnimation();
        QVERIFY(!indicator.isTimerRunning()); // not shown yet
        indicator.show();
        QVERIFY(indicator.isTimerRunning());
        const QImage before = picture(indicator);
        QTRY_VERIFY(picture(indicator) != before);
        indicator.hide();
        QVERIFY(!indicator.isTimerRunning() && indicator.isAnimated());
        indicator.show();
        QVERIFY(indicator.isTimerRunning());
        indicator.showMinimized();
        QTRY_VERIFY(!indicator.isTimerRunning());
        indicator.showNormal();
        QTRY_VERIFY(indicator.isTimerRunning());
        indicator.setPercent(40);
        QVERIFY(!indicator.isTimerRunning()); // nothing turns
        indicator.setPercent(ProgressIndicator::kTurning);
        QVERIFY(indicator.isTimerRunning());
        indicator.stopAnimation();
        QVERIFY(!indicator.isTimerRunning() && !indicator.isAnimated());
    }

    void showsPercent_data()
    {
        columns<int, int>("given", "taken");
        row("none", 0, 0);
        row("half", 50, 50);
        row("too much", 1000, 100);
        row("negative", -7, int(ProgressIndicator::kTurning));
    }

    void showsPercent()
    {
        QFETCH(int, given);
        useTheme(Qt::darkBlue);
        ProgressIndicator indicator;
        indicator.resize(60, 40);
        const QImage atRest = picture(indicator);
        indicator.setPercent(given);
        QTEST(indicator.percent(), "taken");
        QVERIFY(picture(indicator) == atRest);
        indicator.startAnimation();
        QVERIFY(picture(indicator) != atRest);
    }

    void followsTheTheme()
    {
        useTheme(Qt::darkBlue);
        ProgressIndicator indicator;
        indicator.startAnimation();
        indicator.setPercent(30);
        const QImage before = picture(indicator);
        useTheme(Qt::darkRed);
        QVERIFY(picture(indicator) != before);
    }
};

QTEST_MAIN(TestProgressIndicator)
#include "tst_progressindicator.moc"
