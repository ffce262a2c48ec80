#pragma once

#include <QPixmap>
#include <QWidget>

#include <memory>

/// An artificial horizon: shows how far something is rolled to a side and pitched up. Screen readers get both in words.
class QcAttitudeMeter : public QWidget
{
    Q_OBJECT

public:
    explicit QcAttitudeMeter(QWidget *parent = nullptr);
    ~QcAttitudeMeter() override;

    /// Degrees to the right, -180 (excluded) to 180. Other angles are normalized to that; values that
    /// are not finite are ignored.
    void setRoll(double degrees);
    [[nodiscard]] double roll() const;
    /// Degrees upwards, clamped to -90 to 90; values that are not finite are ignored.
    void setPitch(double degrees);
    [[nodiscard]] double pitch() const;
    [[nodiscard]] QString spokenValue() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return width; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void renew();

    struct Private;
    std::unique_ptr<Private> d;
};
