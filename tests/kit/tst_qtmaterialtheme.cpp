#include "kit/qtmaterialstyle.h"
#include "kit/qtmaterialtheme.h"

#include <QSignalSpy>
#include <QtTest>

class TestQtMaterialTheme : public QObject
{
    Q_OBJECT

private slots:
    void keepsEveryKey();
    void oddColorIsNotStored_data();
    void oddColorIsNotStored();
    void styleShowsTheThemeInForce();
};

void TestQtMaterialTheme::keepsEveryKey()
{
    QtMaterialTheme theme;
    const QStringList keys = QtMaterialTheme::keys();
    QCOMPARE(keys.size(), 13);
    for (int i = 0; i < keys.size(); ++i)
        theme.setColor(keys.at(i), QColor(i, 100, 200, 50));
    for (int i = 0; i < keys.size(); ++i)
        QCOMPARE(theme.getColor(keys.at(i)), QColor(i, 100, 200, 50));
}

void TestQtMaterialTheme::oddColorIsNotStored_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QColor>("color");
    QTest::newRow("misspelt") << QStringLiteral("primary4") << QColor(Qt::red);
    QTest::newRow("case") << QStringLiteral("Primary1") << QColor(Qt::red);
    QTest::newRow("no key") << QString() << QColor(Qt::red);
    QTest::newRow("no color") << QStringLiteral("primary1") << QColor();
}

void TestQtMaterialTheme::oddColorIsNotStored()
{
    QFETCH(QString, key);
    QFETCH(QColor, color);
    QtMaterialTheme theme;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("theme colour not accepted")));
    theme.setColor(key, color);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("theme has no such colour")));
    QCOMPARE(theme.getColor(key), QColor(Qt::black));
}

void TestQtMaterialTheme::styleShowsTheThemeInForce()
{
    QtMaterialStyle &style = QtMaterialStyle::instance();
    const QSignalSpy changed(&style, &QtMaterialStyle::themeChanged);
    const QString key = QStringLiteral("text");
    for (const QColor &color : {QColor(Qt::red), QColor(Qt::blue)}) {
        auto theme = std::make_unique<QtMaterialTheme>();
        theme->setColor(key, color);
        style.setTheme(std::move(theme));
        QCOMPARE(style.themeColor(key), color);
    }
    QCOMPARE(changed.count(), 2);

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no theme given")));
    style.setTheme(nullptr);
    QCOMPARE(style.themeColor(key), QColor(Qt::blue));
    QCOMPARE(changed.count(), 2);
}

QTEST_APPLESS_MAIN(TestQtMaterialTheme)

#include "tst_qtmaterialtheme.moc"
