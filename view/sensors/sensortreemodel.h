#pragma once

#include "view/sensors/sensorlist.h"
#include "view/sensors/sensorreading.h"

#include <QAbstractItemModel>
#include <QIcon>

#include <array>

/// The sensors below their groups: name with check mark and colour, latest value, unit, status. Sensors are numbered
/// across all groups. Announces only cells that really changed, and is reset only when another set of sensors is
/// described, so that the selection and open branches survive.
class SensorTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, UnitColumn, StatusColumn, kNumColumns };

    explicit SensorTreeModel(QObject *parent = nullptr);

    /// Of the swatches and status signs, for the view.
    [[nodiscard]] static QSize iconSize();

    /// Without check marks and values at first.
    void setSensors(const SensorList &list);
    [[nodiscard]] const SensorList &sensors() const { return m_list; }
    void setShown(int sensor, bool shown);
    [[nodiscard]] bool isShown(int sensor) const;
    void setReading(int sensor, const QString &value, SensorStatus status);
    /// Texts in the current language.
    void retranslate();

    /// -1 for a group or nothing.
    [[nodiscard]] int sensorAt(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex indexOf(int sensor, int column = NameColumn) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// The user set or cleared a check mark; the model has it already.
    void shownChanged(int sensor, bool shown);
    /// The user typed another name; the list still has the old one.
    void renamed(int sensor, const QString &name);

private:
    struct Row
    {
        QString value;
        SensorStatus status = SensorStatus::NoValue;
        bool shown = false;
        QIcon swatch;
    };

    [[nodiscard]] QVariant groupData(int group, int column, int role) const;
    [[nodiscard]] QVariant sensorData(int sensor, int column, int role) const;
    [[nodiscard]] QVariant icon(const Row &row, int column) const;
    [[nodiscard]] static QVariant foreground(const Row &row, int column);
    [[nodiscard]] QVariant displayText(int sensor, int column) const;
    [[nodiscard]] QString toolTip(int sensor, int column) const;
    [[nodiscard]] Qt::CheckState groupState(int group) const;
    void toggle(int sensor, bool shown);
    void toggleGroup(int group);
    void announce(int sensor, int column);

    SensorList m_list;
    QVector<Row> m_rows;
    std::array<QIcon, 5> m_statusIcons;
    QIcon m_gap; ///< separates a group's name from its check mark
};
