#include "view/sensors/tabsensors.h"

#include "model/model.h"
#include "view/common/logging.h"
#include "view/sensors/sensortile.h"
#include "view/sensors/sensortreemodel.h"
#include "view/sensors/tabsensors_p.h"
#include "view/sensors/tilegrid.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QStackedWidget>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int kRepaintInterval = 50; // ms: 20 times a second
constexpr int kStatusInterval = 250; // digits could not be read faster

} // namespace

TabSensors::Private::Private(TabSensors *tab)
    : q(tab)
    , now([this] { return elapsed.elapsed(); })
{
    elapsed.start();
}

void TabSensors::Private::createTimers()
{
    repaintTimer.setSingleShot(true);
    repaintTimer.setTimerType(Qt::PreciseTimer); // a coarse one would be early now and then
    repaintTimer.setInterval(kRepaintInterval);
    statusTimer.setInterval(kStatusInterval);
    connect(&repaintTimer, &QTimer::timeout, q, [this] { refreshTiles(); });
    connect(&statusTimer, &QTimer::timeout, q, [this] { checkFreshness(); });
}

TabSensors::TabSensors(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    d->build();
    d->retranslateUi();
}

TabSensors::~TabSensors() = default;

void TabSensors::setModel(Model *model)
{
    d->model = model;
    connect(model, &Model::appStateChanged, this, [this] { d->followLink(); });
    updateDescription();
    updateValues();
}

void TabSensors::setTimeSource(std::function<qint64()> now)
{
    d->now = std::move(now);
}

// --- Which sensors ---------------------------------------------------------------------------------------------

void TabSensors::updateDescription()
{
    if (!d->model)
        return;
    const SensorList list = listSensors(*d->model);
    if (!(list == d->sensors->sensors()))
        d->showSensors(list);
}

void TabSensors::Private::showSensors(const SensorList &list)
{
    sensors->setSensors(list);
    showChecks();
    showTiles();
    refresh();
}

void TabSensors::Private::showChecks()
{
    const QVector<SensorInfo> &all = sensors->sensors().sensors;
    for (int i = 0; i < all.size(); ++i)
        sensors->setShown(i, choices.isShown(all.at(i).key, all.at(i).channel >= 0));
}

void TabSensors::Private::showTiles()
{
    const int count = sensors->sensors().sensors.size();
    QVector<SensorTile *> unused = tiles.mid(std::min(count, tiles.size()));
    tiles.resize(count);
    QVector<QWidget *> shown;
    for (int i = 0; i < count; ++i) {
        if (!sensors->isShown(i)) {
            unused.append(std::exchange(tiles[i], nullptr));
            continue;
        }
        if (!tiles.at(i))
            tiles[i] = createTile(i);
        fitTile(i);
        shown.append(tiles.at(i));
    }
    grid->setTiles(shown);
    for (SensorTile *tile : qAsConst(unused)) {
        if (tile)
            tile->deleteLater(); // its own button may be at work
    }
    orderTabs();
    showHint();
    enlarge(static_cast<SensorTile *>(grid->enlarged()));
}

SensorTile *TabSensors::Private::createTile(int index)
{
    auto *tile = new SensorTile(grid);
    tile->setObjectName(QStringLiteral("sensorTile%1").arg(index + 1));
    connect(tile, &SensorTile::kindChosen, q, [this, index](DisplayKind kind) {
        choices.setKind(sensors->sensors().sensors.at(index).key, kind);
        tiles.at(index)->setKind(kind);
    });
    connect(tile, &SensorTile::resetRequested, q, [this, index] { resetHeld(index); });
    connect(tile, &SensorTile::enlargeToggled, q, [this, tile] { enlarge(grid->enlarged() == tile ? nullptr : tile); });
    connect(tile, &SensorTile::focusMoved, q, [this, tile](int key) {
        if (QWidget *next = grid->neighbour(tile, key))
            next->setFocus(Qt::TabFocusReason);
    });
    return tile;
}

void TabSensors::Private::fitTile(int index)
{
    const SensorInfo &sensor = sensors->sensors().sensors.at(index);
    SensorTile *tile = tiles.at(index);
    tile->setSensor(sensor);
    tile->setKind(choices.kind(sensor.key));
    tile->setReading(readingOf(sensor));
    tile->describeReading();
}

void TabSensors::Private::orderTabs() const
{
    QWidget *before = nullptr;
    for (QWidget *tile : grid->tiles()) {
        const QVector<QWidget *> order = static_cast<SensorTile *>(tile)->tabOrder();
        for (QWidget *next : order) {
            if (before)
                setTabOrder(before, next);
            before = next;
        }
    }
}

void TabSensors::Private::showHint()
{
    const QString text = hintText();
    hint->setText(text);
    pages->setCurrentWidget(text.isEmpty() ? tilePage : hint);
}

QString TabSensors::Private::hintText() const
{
    const SensorList &list = sensors->sensors();
    const bool anyValue =
        !live.isEmpty() || std::any_of(recorded.cbegin(), recorded.cend(), [](const auto &value) { return !!value; });
    const bool isConnected = model && model->isConnected();
    if (list.sensors.isEmpty() || !(list.isDescribed() || anyValue || isConnected))
        return TabSensors::tr("Noch keine Sensoren bekannt – bitte verbinden.");
    if (grid->tiles().isEmpty())
        return TabSensors::tr("Kein Sensor ausgewählt.\nLinks die Sensoren ankreuzen, die gezeigt werden sollen.");
    return {};
}

void TabSensors::Private::enlarge(SensorTile *tile)
{
    auto *before = static_cast<SensorTile *>(grid->enlarged());
    if (before && before != tile)
        before->setEnlarged(false);
    grid->setEnlarged(tile);
    side->setVisible(!tile);
    if (tile)
        tile->setEnlarged(true);
    if (tile && before != tile)
        tile->setFocus(Qt::OtherFocusReason);
}

// --- Values ----------------------------------------------------------------------------------------------------

void TabSensors::addSample(const std::array<double, kNumSensors> &values, int period)
{
    const bool isFirst = d->live.isEmpty();
    d->live.add(values, d->now(), period);
    if (!isVisible())
        return;
    if (isFirst)
        d->showHint();
    d->scheduleTiles();
    if (!d->statusTimer.isActive()) {
        d->statusTimer.start();
        d->readOutAnew();
    }
}

void TabSensors::forgetLiveValues()
{
    d->live = {};
    updateValues();
    d->showHint();
    d->refresh();
}

void TabSensors::updateValues()
{
    if (!d->model || !d->live.isEmpty())
        return;
    const auto before = d->recorded;
    for (int i = 0; i < kNumSensors; ++i) {
        const SampleList *newest = d->model->measurement(i, d->model->numChannels(i) - 1);
        d->recorded.at(static_cast<std::size_t>(i)) =
            newest && !newest->isEmpty() ? std::optional<double>(newest->constLast()) : std::nullopt;
    }
    if (d->recorded == before)
        return;
    d->showHint();
    d->refresh();
}

/// What a link that is down has sent last says nothing about now, however slow the box was.
void TabSensors::Private::followLink()
{
    if (!model->isConnected() && isFresh()) {
        live.expire();
        refresh();
    }
    showHint();
}

bool TabSensors::Private::isFresh() const
{
    return live.isFresh(now());
}

std::optional<double> TabSensors::Private::valueOf(int channel) const
{
    return live.isEmpty() ? recorded.at(static_cast<std::size_t>(channel)) : live.latest(channel);
}

/// Digits that run with every repaint could not be read, and those of the tree and of a tile are to be the same.
void TabSensors::Private::readOutAnew()
{
    for (int channel = 0; channel < kNumSensors; ++channel)
        readOut.at(static_cast<std::size_t>(channel)) = valueOf(channel);
}

SensorReading TabSensors::Private::readingOf(const SensorInfo &sensor) const
{
    SensorReading reading;
    if (sensor.channel < 0)
        return reading;
    const auto place = static_cast<std::size_t>(sensor.channel);
    std::optional<double> value = valueOf(sensor.channel);
    if (value)
        value = *value + sensor.offset;
    reading.status = sensorStatus(value, isFresh(), sensor.limits);
    reading.value = value.value_or(0.0);
    reading.readOut = readOut.at(place) ? *readOut.at(place) + sensor.offset : reading.value;
    reading.held = live.held(sensor.channel);
    if (reading.held)
        reading.held = HeldRange{reading.held->minimum + sensor.offset, reading.held->maximum + sensor.offset};
    return reading;
}

/// Not more often than 20 times a second, whoever asks. A minimised window is brought up to date at last when the
/// values are no longer fresh.
void TabSensors::Private::scheduleTiles()
{
    if (!repaintTimer.isActive() && !q->window()->isMinimized())
        repaintTimer.start();
}

void TabSensors::Private::refreshTiles()
{
    const QVector<SensorInfo> &all = sensors->sensors().sensors;
    for (int i = 0; i < all.size(); ++i) {
        if (SensorTile *tile = tiles.at(i))
            tile->setReading(readingOf(all.at(i)));
    }
}

void TabSensors::Private::refreshTree()
{
    const QVector<SensorInfo> &all = sensors->sensors().sensors;
    for (int i = 0; i < all.size(); ++i) {
        const SensorReading reading = readingOf(all.at(i));
        const SensorScale scale = sensorScale(all.at(i).limits, reading.held);
        const QString text =
            reading.hasValue() ? sensorValueText(reading.readOut, scale.valueDecimals) : QStringLiteral("–");
        sensors->setReading(i, text, reading.status);
        if (tiles.at(i))
            tiles.at(i)->describeReading();
    }
}

void TabSensors::Private::refresh()
{
    readOutAnew();
    refreshTiles();
    refreshTree();
}

void TabSensors::Private::checkFreshness()
{
    if (isFresh()) {
        readOutAnew();
        refreshTree();
        scheduleTiles();
        return;
    }
    statusTimer.stop();
    refresh();
}

void TabSensors::Private::resetHeld(int index)
{
    if (index < 0)
        return;
    live.resetHeld(sensors->sensors().sensors.at(index).channel);
    refresh();
}

void TabSensors::Private::resetAll()
{
    for (int channel = 0; channel < kNumSensors; ++channel)
        live.resetHeld(channel);
    refresh();
}

// --- Events ----------------------------------------------------------------------------------------------------

void TabSensors::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    d->showHint();
    d->refresh();
    if (d->isFresh())
        d->statusTimer.start();
}

void TabSensors::resizeEvent(QResizeEvent *event)
{
    d->fitToWidth(width());
    QWidget::resizeEvent(event);
}

void TabSensors::hideEvent(QHideEvent *event)
{
    d->repaintTimer.stop();
    d->statusTimer.stop();
    QWidget::hideEvent(event);
}

void TabSensors::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && d->grid->enlarged())
        d->enlarge(nullptr);
    else
        QWidget::keyPressEvent(event);
}

bool TabSensors::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->tree && event->type() == QEvent::Resize)
        d->fitSide();
    if (watched == d->tree && event->type() == QEvent::KeyPress && d->handleTreeKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

void TabSensors::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        updateDescription(); // names that stand in for missing ones
        d->retranslateUi();
        d->refresh();
    }
    QWidget::changeEvent(event);
}
