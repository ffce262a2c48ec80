#include "view/box/updatedialog.h"

#include "app/theme.h"
#include "device/mesotraconnector.h"
#include "device/scptransfer.h"
#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "view/common/logging.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTextDocument>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int kWidth = 900;
constexpr int kMargin = 32;

/// Shows a path that is too long without its middle, since the end of it is what tells files apart.
class PathLabel : public QLabel
{
public:
    explicit PathLabel(QWidget *parent)
        : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // or a long path would widen the dialog
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
        painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft, shown);
    }
};

void colourResult(QLabel *label, bool isFailure)
{
    label->setStyleSheet(
        QStringLiteral("QLabel {color: %1;}").arg(isFailure ? QStringLiteral("#B00020") : theme::colorText));
}

} // namespace

UpdateDialog::UpdateDialog(QWidget *parent, AskFile askFile, MesotraConnector *connector, const QString &address,
                           int restartWait)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_askFile(std::move(askFile))
    , m_connector(connector)
    , m_address(address)
    , m_restartWait(restartWait)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    setObjectName(QStringLiteral("UpdateDialog"));
    setModal(true);
    createWidgets();
    layOut();
    connectButtons();
    retranslateUi();
    updateState();
}

void UpdateDialog::createWidgets()
{
    m_mainFrame = new QFrame(this);
    m_title = new QLabel(m_mainFrame);
    m_hint = new QLabel(m_mainFrame);
    m_hint->setWordWrap(true);
    m_selectFile = new QtMaterialRaisedButton(m_mainFrame);
    m_file = new PathLabel(m_mainFrame);
    m_uploadButton = new QtMaterialRaisedButton(m_mainFrame);
    m_uploadResult = new QLabel(m_mainFrame);
    m_restartButton = new QtMaterialRaisedButton(m_mainFrame);
    m_restartResult = new QLabel(m_mainFrame);
    m_cancel = new QtMaterialFlatButton(m_mainFrame);
    m_ok = new QtMaterialRaisedButton(m_mainFrame);
    m_mainFrame->setObjectName(QStringLiteral("mainFrame"));
    m_title->setObjectName(QStringLiteral("labelTitle"));
    m_hint->setObjectName(QStringLiteral("label2"));
    m_selectFile->setObjectName(QStringLiteral("buttonSelectFile"));
    m_file->setObjectName(QStringLiteral("labelFilename"));
    m_uploadButton->setObjectName(QStringLiteral("buttonUpload"));
    m_uploadResult->setObjectName(QStringLiteral("labelResult"));
    m_restartButton->setObjectName(QStringLiteral("buttonReset"));
    m_restartResult->setObjectName(QStringLiteral("labelResult2"));
    m_cancel->setObjectName(QStringLiteral("buttonCancel"));
    m_ok->setObjectName(QStringLiteral("buttonOK"));
}

void UpdateDialog::layOut()
{
    // On the frame, not on the dialog: message boxes that open over it would inherit the sheet.
    m_mainFrame->setStyleSheet(QStringLiteral("QFrame#mainFrame {background-color: %1; border: 3px solid %2;}"
                                              "QPushButton {font-size: 20px; min-height: 50px; min-width: 130px;}")
                                   .arg(theme::colorBackground, theme::colorPrimary));
    m_title->setStyleSheet(QStringLiteral("QLabel {font: bold 28px; color: %1;}").arg(theme::colorPrimary));
    auto *column = new QVBoxLayout(m_mainFrame);
    column->setContentsMargins(kMargin, kMargin - 8, kMargin, kMargin - 8);
    column->setSpacing(20);
    column->addWidget(m_title);
    column->addWidget(m_hint);
    column->addLayout(fileRow());
    column->addStretch(1);
    column->addLayout(buttonRow());
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_mainFrame);
    setMinimumWidth(kWidth);
}

QLayout *UpdateDialog::fileRow()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(16);
    grid->addWidget(m_selectFile, 0, 0);
    grid->addWidget(m_file, 0, 1);
    grid->addWidget(m_uploadButton, 1, 0);
    grid->addWidget(m_uploadResult, 1, 1);
    grid->addWidget(m_restartButton, 2, 0);
    grid->addWidget(m_restartResult, 2, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout *UpdateDialog::buttonRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addStretch(1);
    row->addWidget(m_cancel);
    row->addWidget(m_ok);
    return row;
}

void UpdateDialog::connectButtons()
{
    connect(m_selectFile, &QPushButton::clicked, this, &UpdateDialog::onSelectFile);
    connect(m_uploadButton, &QPushButton::clicked, this, &UpdateDialog::onUpload);
    connect(m_restartButton, &QPushButton::clicked, this, &UpdateDialog::onRestart);
    connect(m_cancel, &QPushButton::clicked, this, &UpdateDialog::reject);
    connect(m_ok, &QPushButton::clicked, this, &UpdateDialog::accept);
}

// --- Steps -----------------------------------------------------------------------------------------------------

void UpdateDialog::onSelectFile()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    const QString fileName = m_askFile(tr("Firmware auswählen"), tr("Mesotra Firmware (*.tgz)"));
    if (fileName.isEmpty()) {
        qCDebug(lcView) << " filename is empty!";
        return;
    }
    qCDebug(lcView).noquote().nospace() << " filename=" << fileName;
    m_fileName = fileName;
    m_file->setText(fileName);
    m_file->setToolTip(Qt::convertFromPlainText(fileName)); // a name may hold what looks like a tag
    setUpload(Upload::None);
}

void UpdateDialog::onUpload()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (isBusy() || m_fileName.isEmpty())
        return;
    // The transfer runs an event loop, in which the dialog repaints and "Abbrechen" works.
    setUpload(Upload::Running);
    setUpload(m_connector->transferUpdateFile(m_fileName) ? Upload::Done : Upload::Failed);
}

void UpdateDialog::onRestart()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (isBusy())
        return;
    if (!m_connector->isConnected() && !waitForConnection())
        return;
    if (!m_connector->isConnected()) {
        setRestart(Restart::NoConnection);
        return;
    }
    setRestart(Restart::Connected);
    const bool sent = m_connector->reboot();
    setRestart(sent ? Restart::Sent : Restart::Failed);
    if (sent)
        emit restartSent();
}

/// False if the program ended meanwhile.
bool UpdateDialog::waitForConnection()
{
    setRestart(Restart::Connecting);
    m_connector->connect(m_address);
    QElapsedTimer clock;
    clock.start();
    QEventLoop loop;
    QTimer::singleShot(m_restartWait, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    return clock.elapsed() >= m_restartWait; // the end of the program ends every event loop early
}

void UpdateDialog::reject()
{
    if (m_upload == Upload::Running)
        m_connector->scp().cancel();
    else if (!isBusy())
        QDialog::reject();
}

// --- State -----------------------------------------------------------------------------------------------------

bool UpdateDialog::isBusy() const
{
    return m_upload == Upload::Running || m_restart == Restart::Connecting;
}

void UpdateDialog::setUpload(Upload upload)
{
    m_upload = upload;
    m_restart = Restart::None; // what was said of a restart concerned the attempt before
    updateState();
}

void UpdateDialog::setRestart(Restart restart)
{
    m_restart = restart;
    updateState();
}

void UpdateDialog::updateState()
{
    m_uploadResult->setText(uploadText());
    colourResult(m_uploadResult, m_upload == Upload::Failed);
    m_restartResult->setText(restartText());
    colourResult(m_restartResult, m_restart == Restart::NoConnection || m_restart == Restart::Failed);
    m_selectFile->setEnabled(!isBusy());
    m_uploadButton->setEnabled(!isBusy() && !m_fileName.isEmpty());
    m_restartButton->setEnabled(!isBusy() && m_upload == Upload::Done);
    m_cancel->setEnabled(m_restart != Restart::Connecting);
    m_ok->setEnabled(!isBusy() && m_restart == Restart::Sent);
}

QString UpdateDialog::uploadText() const
{
    switch (m_upload) {
    case Upload::Running:
        return tr("Firmware wird hochgeladen...");
    case Upload::Failed:
        return tr("Fehler beim Hochladen!");
    case Upload::Done:
        return tr("Hochladen erfolgreich.");
    case Upload::None:
        break;
    }
    return {};
}

QString UpdateDialog::restartText() const
{
    switch (m_restart) {
    case Restart::Connecting:
        return tr("Connecting...");
    case Restart::NoConnection:
        return tr("NO CONNECTION!");
    case Restart::Connected:
        return tr("OK");
    case Restart::Sent:
        return tr("Reboot Kommando gesendet.");
    case Restart::Failed:
        return tr("Fehler beim Reboot!");
    case Restart::None:
        break;
    }
    return {};
}

void UpdateDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
        updateState();
    }
    QDialog::changeEvent(event);
}

void UpdateDialog::retranslateUi()
{
    setWindowTitle(theme::applicationName);
    m_title->setText(tr("Firmware Update"));
    m_hint->setText(tr("Bitte Firmware-Datei auswählen (*.tgz) und hochladen. Danach Mesotra Box neu starten."));
    m_selectFile->setText(tr("Firmware Datei auswählen..."));
    m_uploadButton->setText(tr("Firmware hochladen"));
    m_restartButton->setText(tr("Mesotra Neustart"));
    m_cancel->setText(tr("Abbrechen"));
    m_ok->setText(tr("OK"));
}
