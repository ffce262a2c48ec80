#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include <array>

class BoxWhiskersWidget;
class QLabel;

/// A box plot and, below it, its figures: n, mean, sigma, minimum, Q1, median, Q3, maximum.
class NormalBoxWidget : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kNumFigures = 8;

    explicit NormalBoxWidget(QWidget *parent = nullptr);

    /// Numbers that are not finite are ignored. Without any, all figures but n stay blank.
    void set(QList<double> values);
    /// Fixes the value axis; see BoxWhiskersWidget::setAxisRange().
    void setAxisRange(double minimum, double maximum);
    /// The value axis follows the values again, with some room at both ends (the default).
    void setAutomaticAxisRange();
    void setFillColor(const QColor &color);
    /// Appended to the figures that are not counts; may be empty.
    void setUnit(const QString &unit);

    [[nodiscard]] BoxWhiskersWidget *boxPlot() const { return m_boxPlot; }
    /// What a figure's label shows: 0 = n, then in the order above; empty outside 0 to 7.
    [[nodiscard]] QString figureText(int index) const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void createLayout();
    void retranslateUi();
    void showFigures();
    void fitAxis();

    BoxWhiskersWidget *m_boxPlot = nullptr;
    std::array<QLabel *, kNumFigures> m_captions{};
    std::array<QLabel *, kNumFigures> m_figures{};
    QString m_unit;
    bool m_automaticAxis = true;
};
