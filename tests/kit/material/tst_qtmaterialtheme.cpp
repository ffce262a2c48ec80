#include "kit/material/qtmaterialstyle.h"
#include "kit/material/qtmaterialtheme.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

class TestQtMaterialTheme : public QObject
{
    Q_OBJECT

private slots:
    void keepsEveryKey()
    {
        QtMaterialTheme theme;
        const QStringList keys = QtMaterialTheme::keys();
        QCOMPARE(keys.size(), 13);
        for (int i = 0; i < keys.size(); ++i)
            theme.setColor(keys.at(i), QColor(i, 100, 200, 50));
        for (int i = 0; i < keys.size(); ++i)
            QCOMPARE(theme.getColor(keys.at(i)), QColor(i, 100, 200, 50));
    }

    void oddColorIsNotStored_data()
    {
        columns<QString, QColor>("key", "color");
        row("misspelt", "primary4", QColor(Qt::red));
        row("case", "Primary1", QColor(Qt::red));
        row("no key", QString(), QColor(Qt::red));
        row("no color", "primary1", QColor());
    }

    void oddColorIsNotStored()
    {
        QFETCH(QString, key);
        QFETCH(QColor, color);
        QtMaterialTheme theme;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("theme colour not accepted"_s));
        theme.setColor(key, color);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("theme has no such colour"_s));
        QCOMPARE(theme.getColor(key), QColor(Qt::black));
    }

    void styleShowsTheThemeInForce()
    {
        QtMaterialStyle &style = QtMaterialStyle::instance();
        const QSignalSpy changed(&style, &QtMaterialStyle::themeChanged);
        const QString key = "text"_s;
        for (const QColor &color : {QColor(Qt::red), QColor(Qt::blue)}) {
            auto theme = std::make_unique<QtMaterialTheme>();
            theme->setColor(key, color);
            style.setTheme(std::move(theme));
            QCOMPARE(style.themeColor(key), color);
        }
        QCOMPARE(changed.count(), 2);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("no theme given"_s));
        style.setTheme(nullptr);
        QCOMPARE(style.themeColor(key), QColor(Qt::blue));
        QCOMPARE(changed.count(), 2);
    }
};

QTEST_APPLESS_MAIN(TestQtMaterialTheme)

#include "tst_qtmaterialtheme.moc"
