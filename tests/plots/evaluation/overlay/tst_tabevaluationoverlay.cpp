#include "plots/evaluation/overlay/colordelegate.h"
#include "plots/evaluation/overlay/overlayplot.h"
#include "plots/evaluation/overlay/overlaytablemodel.h"
#include "plots/evaluation/overlay/tabevaluationoverlay.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/shots.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

#include <memory>

namespace {

using Column = OverlayTableModel::Column;

constexpr QRgb kFaded = 0xffcdcdcd;

SampleList flat(double value)
{
    return SampleList(50, value);
}

} // namespace

Q_DECLARE_METATYPE(AlignBy)

class TabEvaluationOverlayTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_model = std::make_unique<Model>(QString());
        m_page = std::make_unique<TabEvaluationOverlay>();
        m_page->setModel(m_model.get());
        m_page->resize(1080, 640);
        m_page->show();
    }

    void cleanup()
    {
        m_page.reset();
        m_model.reset();
    }

    void linesUpShots_data()
    {
        // shift: of the first shot
        // deviation: of the second from the first
        columns<AlignBy, double, int, double, QString>("by", "threshold", "shift", "lift", "deviation");

        // With the offset of 10 the shots are 10 10 19 19 10 and 12 12 12 12 21 21.
        row("start", AlignBy::Start, 0.0, 0, 0.0, "11");
        row("marker at sample 3", AlignBy::Marker, 0.0, 0, -19.0, "18");
        row("rising", AlignBy::Rising, 15.0, 2, 0.0, "2");
        row("falling, only one does", AlignBy::Falling, 15.0, 0, 0.0, QString());
    }

    void linesUpShots()
    {
        QFETCH(AlignBy, by);
        QFETCH(double, threshold);
        addShot(*m_model, {0, 0, 9, 9, 0}, 1000.0);
        addShot(*m_model, {2, 2, 2, 2, 11, 11}, 1000.0);
        m_model->setOffset(0, 10.0);
        m_model->setVerticalMarkerAbsolute(0, 3);
        m_page->update();
        m_page->setReferenceShot(0);
        align(by, threshold);
        QTEST(plot()->reference().shift, "shift");
        QTEST(plot()->reference().lift, "lift");
        QTEST(text(1, Column::Deviation), "deviation");
        QCOMPARE(status().contains("1 ohne Durchgang"_s), by == AlignBy::Falling);
        QCOMPARE(plot()->horizontalLineCount(), threshold > 0.0 ? 1 : 0);
    }

    void selectedShotsKeepTheirColors()
    {
        for (const double value : {10.0, 50.0, 90.0})
            addShot(*m_model, flat(value), 1000.0);
        m_page->update();
        const auto colors = [this] {
            return QVector<bool>{draws(ColorDelegate::colorAt(0).rgb()), draws(ColorDelegate::colorAt(1).rgb()),
                                 draws(ColorDelegate::colorAt(2).rgb()), draws(kFaded)};
        };
        QCOMPARE(colors(), QVector<bool>({true, true, true, false}));
        table()->selectRow(1);
        QCOMPARE(colors(), QVector<bool>({false, true, false, true}));
        table()->clearSelection();
        QCOMPARE(colors(), QVector<bool>({true, true, true, false}));
        table()->sortByColumn(Column::Number, Qt::DescendingOrder);
        table()->selectRow(0); // the newest now
        QCOMPARE(colors(), QVector<bool>({false, false, true, true}));
        QTest::keyClick(table(), Qt::Key_Space); // if none of the selected shots is drawn, the others do not fade
        QCOMPARE(colors(), QVector<bool>({true, true, false, false}));
    }

    void typingSurvivesAGrowingShot()
    {
        addShot(*m_model, {1, 1, 1}, 1000.0);
        addShot(*m_model, {1}, 1000.0);
        m_page->update();
        m_page->setReferenceShot(0);
        table()->setCurrentIndex(cell(1, Column::Label));
        QTest::keyClick(table(), Qt::Key_F2);
        auto *edit = table()->findChild<QLineEdit *>();
        QVERIFY(edit);
        QTest::keyClicks(edit, "hal"_s);
        QVERIFY(m_model->appendSample(0, 1, 4.0));
        m_page->update();
        QCOMPARE(text(1, Column::Deviation), "3"_s);
        QTest::keyClicks(edit, "b"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        QTRY_COMPARE(m_model->shotLabel(1), "halb"_s);
        QCOMPARE(m_model->shotLabel(0), QString());
    }

    /// Reference, ticks and colours belong to shots, not to rows.
    void looksStayWithTheirShots()
    {
        for (const double value : {1, 2, 3, 4})
            addShot(*m_model, flat(value), 1000.0);
        m_page->update();
        QVERIFY(table()->model()->setData(cell(2, Column::Shown), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(table()->model()->setData(cell(3, Column::Color), QColor(1, 2, 3)));
        m_page->setReferenceShot(3);
        table()->selectRow(2);
        QVERIFY(m_model->deleteChannel(0));
        m_model->emitDataChanged();
        QTRY_COMPARE(table()->model()->rowCount(), 3);
        QCOMPARE(cell(1, Column::Shown).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QCOMPARE(cell(2, Column::Color).data(Qt::EditRole).value<QColor>(), QColor(1, 2, 3));
        QCOMPARE(m_page->referenceShot(), 2);
        QVERIFY(!table()->selectionModel()->hasSelection());

        child<QAbstractButton>("sensorButton3")->setChecked(true);
        QCOMPARE(m_page->referenceShot(), 2);
        QCOMPARE(plot()->reference().samples->at(0), 3004.0);
        m_model->clearData();
        QTRY_COMPARE(table()->model()->rowCount(), 0);
        QCOMPARE(m_page->referenceShot(), -1);
        QVERIFY(!plot()->reference().samples);
    }

    void followsTheModelOnlyWhileShown()
    {
        addShot(*m_model, flat(1), 1000.0);
        m_model->emitDataChanged();
        QCOMPARE(table()->model()->rowCount(), 0); // changes are bundled
        QTRY_COMPARE(table()->model()->rowCount(), 1);
        m_page->hide();
        addShot(*m_model, flat(2), 1000.0);
        m_model->emitDataChanged();
        QTest::qWait(2 * TabEvaluationOverlay::kRefreshInterval);
        QCOMPARE(table()->model()->rowCount(), 1);
        QVERIFY(!plot()->curve(0)); // and no samples are kept that may have been removed
        m_page->show();
        QCOMPARE(table()->model()->rowCount(), 2);
        QCOMPARE(*plot()->curve(1), flat(2));

        m_model->clearData();
        m_page->hide(); // before it has refreshed
        QTRY_VERIFY(!plot()->curve(0));
        m_page->show();
        QCOMPARE(table()->model()->rowCount(), 0);
    }

    void survivesRemovalItWasNotToldOf()
    {
        addShot(*m_model, flat(1), 1000.0);
        addShot(*m_model, flat(2), 1000.0);
        m_page->update();
        m_page->setReferenceShot(1);
        child<QCheckBox>("checkMean")->setChecked(true);
        m_model->blockSignals(true);
        m_model->clearData();
        m_model->discardRemoved();
        m_model->blockSignals(false);
        QVERIFY(draws(ColorDelegate::colorAt(0).rgb()));
        m_model.reset();
        QVERIFY(draws(ColorDelegate::colorAt(0).rgb()));
        align(AlignBy::Rising, 1.0);
        table()->selectRow(0);
        child<QAbstractButton>("buttonNone")->click();
        m_page->update();
    }

    void worksWithAnyNumberOfShots()
    {
        constexpr int kShots = OsziWidget::kNumSlots + 5;
        child<QCheckBox>("checkBand")->setChecked(true);
        align(AlignBy::Marker);
        m_page->update();
        m_page->setReferenceShot(0);
        QVERIFY(!m_page->grab().isNull());
        for (int shot = 0; shot < kShots; ++shot)
            addShot(*m_model, {1.0 * shot, 2.0}, 1000.0);
        m_page->update();
        QCOMPARE(table()->model()->rowCount(), kShots);
        QVERIFY(!m_page->grab().isNull());
        QCOMPARE(plot()->curve(OsziWidget::kNumSlots - 1)->at(0), kShots - 1.0);
    }

private:
    template <typename Widget>
    [[nodiscard]] Widget *child(const char *name) const
    {
        return m_page->findChild<Widget *>(QLatin1String(name));
    }
    [[nodiscard]] QTableView *table() const { return child<QTableView>("tableOverlay"); }
    [[nodiscard]] QModelIndex cell(int row, int column) const { return table()->model()->index(row, column); }
    [[nodiscard]] QString text(int row, int column) const { return cell(row, column).data().toString(); }
    [[nodiscard]] QString status() const { return child<QLabel>("labelStatus")->text(); }
    [[nodiscard]] OverlayPlot *plot() const { return child<OverlayPlot>("osziWidget"); }
    /// Whether the plot has at least a few pixels of exactly this colour.
    [[nodiscard]] bool draws(QRgb color) const
    {
        const QImage image = plot()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
            count += int(std::count(row + OsziWidget::kLeftMargin + 1, row + image.width(), color));
        }
        return count > 20;
    }
    void align(AlignBy by, double threshold = 0.0)
    {
        auto *combo = child<QComboBox>("comboAlignment");
        combo->setCurrentIndex(combo->findData(QPoint(int(by), 0)));
        child<QDoubleSpinBox>("spinBoxThreshold")->setValue(threshold);
    }

    std::unique_ptr<Model> m_model;
    std::unique_ptr<TabEvaluationOverlay> m_page;
};

QTEST_MAIN(TabEvaluationOverlayTest)

#include "tst_tabevaluationoverlay.moc"
