#include "view/project/tabproject.h"

#include "model/model.h"
#include "view/common/actionicon.h"
#include "view/common/logging.h"
#include "view/common/tabstyle.h"
#include "view/project/phasestrip.h"
#include "view/project/projectform.h"
#include "view/project/projectimages.h"
#include "view/project/textfield.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>
#include <QVBoxLayout>

namespace {

const QColor kDanger(0xC6, 0x28, 0x28);

constexpr int kNarrowPage = 900;
constexpr int kNarrowStrip = 760;
constexpr int kNarrowImages = 520;
constexpr int kTinyPage = 420; // the window as it is without settings

} // namespace

struct TabProject::Private
{
    Model *model = nullptr;
    QString comment;      // what the field was filled with
    QString commentShown; // the same as the field gives it back
    ProjectForm *form = nullptr;
    ProjectImages *images = nullptr;
    PhaseStrip *phases = nullptr;
    LongTextEdit *commentEdit = nullptr;
    QLabel *recordHeading = nullptr;
    QLabel *imagesHeading = nullptr;
    QLabel *commentHeading = nullptr;
    QLabel *phaseHeading = nullptr;
    QFrame *danger = nullptr;
    QLabel *warning = nullptr;
    QPushButton *clear = nullptr;
    // One beside the other, or one below the other in a narrow window.
    QBoxLayout *columns = nullptr;
    QBoxLayout *dangerRow = nullptr;
    QBoxLayout *page = nullptr;
    bool tiny = false;

    void createWidgets(QWidget *parent);
    void createDanger(QWidget *parent);
    void layOut(QWidget *content);
    void arrange(int width);
    void setTiny(bool isTiny);
    void showClearText() const;
    void connectTo(TabProject *tab) const;
    void fillComment(const QString &text);
};

void TabProject::Private::createWidgets(QWidget *parent)
{
    form = new ProjectForm(parent);
    commentEdit = new LongTextEdit(parent);
    commentEdit->setObjectName(QStringLiteral("textEditComment"));
    commentEdit->setTabChangesFocus(true);
    commentEdit->setMinimumHeight(48); // so that the page fits into 1280 x 800 with the state line
    images = new ProjectImages(parent);
    phases = new PhaseStrip(parent);
    for (QLabel **heading : {&recordHeading, &imagesHeading, &commentHeading, &phaseHeading}) {
        *heading = new QLabel(parent);
        tabstyle::makeHeading(*heading);
    }
    commentHeading->setBuddy(commentEdit);
    createDanger(parent);
}

/// Set apart from the rest, so that nobody presses the button out of habit.
void TabProject::Private::createDanger(QWidget *parent)
{
    danger = new QFrame(parent);
    danger->setObjectName(QStringLiteral("frameDanger"));
    danger->setStyleSheet(QStringLiteral("QFrame#frameDanger {border: 1px solid %1; border-radius: 4px;}"
                                         "QPushButton {background-color: %1; padding: 0px 18px;}"
                                         "QPushButton:focus {border: 3px solid black;}")
                              .arg(kDanger.name()));
    warning = new QLabel(danger);
    clear = new QPushButton(danger);
    clear->setObjectName(QStringLiteral("buttonClearData"));
    clear->setIcon(actionIcon(QStringLiteral("delete.png"), Qt::white));
    clear->setIconSize(QSize(28, 28));
    dangerRow = new QHBoxLayout(danger);
    dangerRow->setSpacing(16);
    dangerRow->addWidget(warning, 1);
    dangerRow->addWidget(clear);
}

void TabProject::Private::layOut(QWidget *content)
{
    auto *left = new QVBoxLayout;
    left->addWidget(recordHeading);
    left->addWidget(form);
    left->addWidget(commentHeading);
    left->addWidget(commentEdit, 1);
    auto *right = new QVBoxLayout;
    right->addWidget(imagesHeading);
    right->addWidget(images, 1);
    columns = new QHBoxLayout;
    columns->setSpacing(24);
    columns->addLayout(left, 2);
    columns->addLayout(right, 3);
    page = new QVBoxLayout(content);
    page->setSpacing(2);
    page->addLayout(columns, 1);
    page->addWidget(phaseHeading);
    page->addWidget(phases);
    page->addSpacing(6);
    page->addWidget(danger);
    for (QVBoxLayout *column : {left, right})
        column->setSpacing(2);
    setTiny(false);
}

void TabProject::Private::arrange(int width)
{
    const auto direction = [width](int narrow) {
        return width < narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    };
    columns->setDirection(direction(kNarrowPage));
    phases->setDirection(direction(kNarrowStrip));
    dangerRow->setDirection(direction(kNarrowStrip));
    warning->setWordWrap(width < kNarrowStrip); // only then: a label that wraps keeps the page from getting low
    images->setNarrow(width < kNarrowImages);
    images->setMinimumHeight(width < kNarrowPage ? images->sizeHint().height() : 0);
    if (tiny != (width < kTinyPage))
        setTiny(!tiny);
}

void TabProject::Private::setTiny(bool isTiny)
{
    tiny = isTiny;
    const int edge = tiny ? 10 : 24;
    page->setContentsMargins(edge, 2, edge, 8);
    dangerRow->setContentsMargins(tiny ? 8 : 16, 6, 8, 6);
    form->setStacked(tiny);
    for (QLabel *heading : {recordHeading, imagesHeading, commentHeading, phaseHeading})
        tabstyle::makeHeading(heading, tiny ? 18 : 22);
    showClearText();
}

void TabProject::Private::showClearText() const
{
    clear->setText(tiny ? TabProject::tr("&Löschen...") : TabProject::tr("&Alle Messdaten löschen..."));
}

void TabProject::Private::connectTo(TabProject *tab) const
{
    connect(form, &ProjectForm::edited, tab, &TabProject::projectDataChanged);
    connect(commentEdit, &LongTextEdit::edited, tab, &TabProject::commentChanged);
    connect(phases, &PhaseStrip::nameEdited, tab, &TabProject::phaseEditChanged);
    connect(clear, &QPushButton::clicked, tab, &TabProject::clearDataClicked);
    connect(images, &ProjectImages::chooseClicked, tab, &TabProject::imageButtonClicked);
    connect(images, &ProjectImages::enlarged, tab, &TabProject::imageLabelClicked);
    connect(images, &ProjectImages::deleteClicked, tab, &TabProject::imageDeleteClicked);
    connect(images, &ProjectImages::saveClicked, tab, &TabProject::imageSaveClicked);
    connect(images, &ProjectImages::filesGiven, tab, &TabProject::imageFilesGiven);
    connect(images, &ProjectImages::imageGiven, tab, &TabProject::imageGiven);
}

void TabProject::Private::fillComment(const QString &text)
{
    commentEdit->showText(text);
    comment = text;
    commentShown = commentEdit->toPlainText();
}

TabProject::TabProject(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    QWidget *content = tabstyle::addScrolledPage(this);
    d->createWidgets(content);
    d->layOut(content);
    d->connectTo(this);
    retranslateUi();
}

TabProject::~TabProject() = default;

void TabProject::setModel(Model *model)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->model = model;
    updateFromModel();
}

ProjectData TabProject::projectData() const
{
    return d->form->data();
}

QString TabProject::comment() const
{
    // The field gives back some characters changed (no-break spaces); a comment not edited stays as it was.
    const QString text = d->commentEdit->toPlainText();
    return text == d->commentShown ? d->comment : text;
}

void TabProject::updateFromModel()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model)
        return;
    d->form->setData(d->model->projectData());
    if (d->model->comment() != comment())
        d->fillComment(d->model->comment());
    d->phases->showFrom(*d->model);
    d->images->showFrom(*d->model);
}

void TabProject::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabProject::resizeEvent(QResizeEvent *event)
{
    d->arrange(event->size().width());
    QWidget::resizeEvent(event);
}

void TabProject::retranslateUi()
{
    d->recordHeading->setText(tr("Projektbeschreibung"));
    d->imagesHeading->setText(tr("Bilder"));
    d->commentHeading->setText(tr("K&ommentar"));
    d->commentEdit->setAccessibleName(tr("Kommentar"));
    d->phaseHeading->setText(tr("Phasen"));
    d->warning->setText(tr("Löscht die Messdaten aller Sensoren; die Projektbeschreibung bleibt."));
    d->showClearText();
    d->clear->setToolTip(d->warning->text());
}
