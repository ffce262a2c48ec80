#include "view/project/projectform.h"

#include "plots/common/decimalspinbox.h"
#include "view/common/tabstyle.h"
#include "view/project/textfield.h"

#include <QDate>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>

#include <array>

namespace {

constexpr int kLargestForce = 100000;   // kN
constexpr int kLargestPressure = 10000; // bar
constexpr double kLongestTime = 3600.0; // s
constexpr int kTimeDecimals = 3;
constexpr int kLongestText = 200; // characters
constexpr int kNumberWidth = 236; // pixels

enum Row { Name, Number, User, Date, Customer, Force, InjectionTime, PressTime, Pressure, NumRows };
constexpr std::size_t kNumTexts = Customer + 1;

/// A field that was not edited keeps its value, which may have more digits than the field shows.
template <typename T>
void takeIfEdited(T &value, const T &before, const T &now)
{
    if (now != before)
        value = now;
}

/// A value from a file may be outside the range for typing: the range is extended, the value stays as it is.
template <typename SpinBox, typename T>
void setAnyValue(SpinBox *box, T value)
{
    box->setRange(std::min(box->minimum(), value), std::max(box->maximum(), value));
    if (box->value() != value)
        box->setValue(value);
}

template <typename SpinBox>
SpinBox *newNumberField(QWidget *parent, const char *name)
{
    auto *box = new SpinBox(parent);
    box->setObjectName(QLatin1String(name));
    box->setAlignment(Qt::AlignHCenter);
    box->setStyleSheet(QStringLiteral("QAbstractSpinBox {min-width: 110px; min-height: 30px; padding: 2px;}"));
    box->setMaximumWidth(kNumberWidth);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    box->setFocusPolicy(Qt::StrongFocus); // not by the wheel, see eventFilter()
    return box;
}

QDoubleSpinBox *newTimeField(QWidget *parent, const char *name)
{
    auto *box = newNumberField<DecimalSpinBox>(parent, name);
    box->setDecimals(kTimeDecimals);
    box->setRange(0.0, kLongestTime);
    box->setSingleStep(0.1);
    return box;
}

} // namespace

struct ProjectForm::Private
{
    ProjectData data;  // what the fields were filled with
    ProjectData shown; // the same as the fields show it
    std::array<QLineEdit *, kNumTexts> texts{};
    QSpinBox *force = nullptr;
    QDoubleSpinBox *injectionTime = nullptr;
    QDoubleSpinBox *pressTime = nullptr;
    QSpinBox *pressure = nullptr;
    std::array<QLabel *, NumRows> labels{};
    QPushButton *today = nullptr;

    [[nodiscard]] ProjectData read() const;
    void fill(const ProjectData &project) const;
    void createFields(QWidget *form);
    void layOut(QWidget *form);
    [[nodiscard]] QWidget *field(int row) const;
};

ProjectData ProjectForm::Private::read() const
{
    ProjectData project;
    project.name = texts[Name]->text();
    project.number = texts[Number]->text();
    project.user = texts[User]->text();
    project.date = texts[Date]->text();
    project.customer = texts[Customer]->text();
    project.closingForce = force->value();
    project.injectionTime = injectionTime->value();
    project.pressTime = pressTime->value();
    project.pressure = pressure->value();
    return project;
}

void ProjectForm::Private::fill(const ProjectData &project) const
{
    const std::array<QString, kNumTexts> values{project.name, project.number, project.user, project.date,
                                                project.customer};
    for (std::size_t i = 0; i < kNumTexts; ++i)
        textfield::show(texts[i], values[i], kLongestText);
    setAnyValue(force, project.closingForce);
    setAnyValue(injectionTime, project.injectionTime);
    setAnyValue(pressTime, project.pressTime);
    setAnyValue(pressure, project.pressure);
}

void ProjectForm::Private::createFields(QWidget *form)
{
    const std::array<const char *, kNumTexts> names{"lineEditProjectName", "lineEditProjectNumber",
                                                    "lineEditProjectUser", "lineEditProjectDate",
                                                    "lineEditProjectCustomer"};
    for (std::size_t i = 0; i < kNumTexts; ++i) {
        texts[i] = new QLineEdit(form);
        texts[i]->setObjectName(QLatin1String(names[i]));
    }
    today = new QPushButton(form);
    today->setObjectName(QStringLiteral("buttonToday"));
    tabstyle::makeRegular(today);
    force = newNumberField<QSpinBox>(form, "spinBoxClosePower");
    force->setRange(0, kLargestForce);
    injectionTime = newTimeField(form, "spinBoxInjectionTime");
    pressTime = newTimeField(form, "spinBoxPressTime");
    pressure = newNumberField<QSpinBox>(form, "spinBoxPressure");
    pressure->setRange(0, kLargestPressure);
}

QWidget *ProjectForm::Private::field(int row) const
{
    const std::array<QWidget *, NumRows - kNumTexts> numbers{force, injectionTime, pressTime, pressure};
    const auto index = static_cast<std::size_t>(row);
    return index < kNumTexts ? static_cast<QWidget *>(texts[index]) : numbers[index - kNumTexts];
}

void ProjectForm::Private::layOut(QWidget *form)
{
    auto *layout = new QFormLayout(form);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(4);
    layout->setHorizontalSpacing(16);
    layout->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int row = 0; row < NumRows; ++row) {
        auto *label = new QLabel(form);
        label->setBuddy(field(row));
        labels[static_cast<std::size_t>(row)] = label;
        if (row == Date) {
            auto *pair = new QHBoxLayout;
            pair->addWidget(texts[Date], 1);
            pair->addWidget(today);
            QWidget::setTabOrder(texts[Date], today);
            layout->addRow(label, pair);
        } else if (row < Force) {
            layout->addRow(label, field(row));
        } else {
            auto *left = new QHBoxLayout;
            left->addWidget(field(row), 100);
            left->addStretch(1);
            layout->addRow(label, left);
        }
    }
}

ProjectForm::ProjectForm(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->createFields(this);
    d->layOut(this);
    d->shown = d->read();
    for (QWidget *box : {static_cast<QWidget *>(d->force), static_cast<QWidget *>(d->injectionTime),
                         static_cast<QWidget *>(d->pressTime), static_cast<QWidget *>(d->pressure)})
        box->installEventFilter(this);
    for (QLineEdit *edit : d->texts)
        connect(edit, &QLineEdit::textEdited, this, &ProjectForm::edited);
    for (QSpinBox *box : {d->force, d->pressure})
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &ProjectForm::edited);
    for (QDoubleSpinBox *box : {d->injectionTime, d->pressTime})
        connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &ProjectForm::edited);
    connect(d->today, &QPushButton::clicked, this, [this] {
        d->texts[Date]->setText(QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy")));
        emit edited();
    });
    retranslateUi();
}

ProjectForm::~ProjectForm() = default;

void ProjectForm::setStacked(bool stacked)
{
    static_cast<QFormLayout *>(layout())->setRowWrapPolicy(stacked ? QFormLayout::WrapAllRows
                                                                   : QFormLayout::DontWrapRows);
}

void ProjectForm::setData(const ProjectData &data)
{
    if (data == this->data())
        return;
    const bool blocked = blockSignals(true);
    d->fill(data);
    blockSignals(blocked);
    d->data = data;
    d->shown = d->read();
}

ProjectData ProjectForm::data() const
{
    const ProjectData now = d->read();
    ProjectData result = d->data;
    takeIfEdited(result.name, d->shown.name, now.name);
    takeIfEdited(result.number, d->shown.number, now.number);
    takeIfEdited(result.user, d->shown.user, now.user);
    takeIfEdited(result.date, d->shown.date, now.date);
    takeIfEdited(result.customer, d->shown.customer, now.customer);
    takeIfEdited(result.closingForce, d->shown.closingForce, now.closingForce);
    takeIfEdited(result.injectionTime, d->shown.injectionTime, now.injectionTime);
    takeIfEdited(result.pressTime, d->shown.pressTime, now.pressTime);
    takeIfEdited(result.pressure, d->shown.pressure, now.pressure);
    return result;
}

/// The wheel scrolls the page; a number that happens to be under the pointer must not change.
bool ProjectForm::eventFilter(QObject *watched, QEvent *event)
{
    const auto *box = qobject_cast<const QWidget *>(watched);
    if (event->type() != QEvent::Wheel || !box || box->hasFocus())
        return QWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}

void ProjectForm::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void ProjectForm::retranslateUi()
{
    const std::array<QString, NumRows> texts{
        tr("&Projekt:"),      tr("Projekt&nummer:"), tr("Bea&rbeiter:"),    tr("&Datum:"), tr("&Kunde:"),
        tr("&Schließkraft:"), tr("&Einspritzzeit:"), tr("Na&chdruckzeit:"), tr("Dr&uck:"),
    };
    for (std::size_t i = 0; i < texts.size(); ++i)
        d->labels[i]->setText(texts[i]);
    d->texts[Date]->setToolTip(tr("TT.MM.JJJJ"));
    d->today->setText(tr("&Heute"));
    d->today->setToolTip(tr("Das heutige Datum eintragen"));
    d->force->setSuffix(tr(" kN"));
    d->injectionTime->setSuffix(tr(" s"));
    d->pressTime->setSuffix(tr(" s"));
    d->pressure->setSuffix(tr(" bar"));
}
