#include "view/tabproject.h"

#include "model/model.h"
#include "view/actionicon.h"
#include "view/logging.h"
#include "view/phasestrip.h"
#include "view/projectform.h"
#include "view/projectimages.h"
#include "view/tabstyle.h"
#include "view/textfield.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QColor kDanger(0xC6, 0x28, 0x28);

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

    void createWidgets(QWidget *parent);
    void createDanger(QWidget *parent);
    void layOut(QWidget *content) const;
    void connectTo(TabProject *tab) const;
    void fillComment(const QString &text);
};

void TabProject::Private::createWidgets(QWidget *parent)
{
    form = new ProjectForm(parent);
    commentEdit = new LongTextEdit(parent);
    commentEdit->setObjectName(QStringLiteral("textEditComment"));
    commentEdit->setTabChangesFocus(true);
    commentEdit->setMinimumHeight(80);
    images = new ProjectImages(parent);
    phases = new PhaseStrip(parent);
    for (QLabel **heading : {&recordHeading, &imagesHeading, &commentHeading, &phaseHeading}) {
        *heading = new QLabel(parent);
        tabstyle::makeHeading(*heading);
    }
    commentHeading->setBuddy(commentEdit);
    createDanger(parent);
}

/// Set apart, so that nobody gets there by habit.
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
    auto *row = new QHBoxLayout(danger);
    row->setContentsMargins(16, 6, 8, 6);
    row->setSpacing(16);
    row->addWidget(warning, 1);
    row->addWidget(clear);
}

void TabProject::Private::layOut(QWidget *content) const
{
    auto *left = new QVBoxLayout;
    left->addWidget(recordHeading);
    left->addWidget(form);
    left->addWidget(commentHeading);
    left->addWidget(commentEdit, 1);
    auto *right = new QVBoxLayout;
    right->addWidget(imagesHeading);
    right->addWidget(images, 1);
    auto *columns = new QHBoxLayout;
    columns->setSpacing(24);
    columns->addLayout(left, 2);
    columns->addLayout(right, 3);
    auto *page = new QVBoxLayout(content);
    page->setContentsMargins(24, 2, 24, 8);
    page->setSpacing(2);
    page->addLayout(columns, 1);
    page->addWidget(phaseHeading);
    page->addWidget(phases);
    page->addSpacing(12);
    page->addWidget(danger);
    for (QVBoxLayout *column : {left, right})
        column->setSpacing(2);
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

void TabProject::retranslateUi()
{
    d->recordHeading->setText(tr("Projektbeschreibung"));
    d->imagesHeading->setText(tr("Bilder"));
    d->commentHeading->setText(tr("K&ommentar"));
    d->commentEdit->setAccessibleName(tr("Kommentar"));
    d->phaseHeading->setText(tr("Phasen"));
    d->warning->setText(tr("Löscht die Messdaten aller Sensoren; die Projektbeschreibung bleibt."));
    d->clear->setText(tr("&Alle Messdaten löschen..."));
    d->clear->setToolTip(d->warning->text());
}
