#include "view/project/imagetile.h"

#include "app/theme.h"
#include "model/project/photo.h"
#include "view/common/actionicon.h"
#include "view/project/tilepicture.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int kRefusalTime = 1500; // ms
constexpr int kButtonSize = 36;
constexpr int kMargin = 6;

/// The files of a drag or of the clipboard that look like pictures.
QStringList pictureFiles(const QMimeData &data)
{
    static const QStringList suffixes = photoSuffixes();
    QStringList files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile() && suffixes.contains(QFileInfo(url.toLocalFile()).suffix().toLower()))
            files += url.toLocalFile();
    }
    return files;
}

bool hasPicture(const QMimeData &data)
{
    return data.hasImage() || !pictureFiles(data).isEmpty();
}

/// A project file is left to the window, which opens it.
bool isProjectFile(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 && urls.constFirst().path().endsWith(QLatin1String(".vnt"), Qt::CaseInsensitive);
}

QPushButton *newIconButton(const QString &name, const QString &iconFile, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    button->setIcon(actionIcon(iconFile, theme::qColorBackground));
    button->setIconSize(QSize(24, 24));
    button->setFocusPolicy(Qt::NoFocus); // the picture's keys and its menu do the same
    button->setStyleSheet(QStringLiteral("QPushButton {min-width: %1px; max-width: %1px; min-height: %1px;"
                                         " max-height: %1px;}")
                              .arg(kButtonSize));
    return button;
}

} // namespace

ImageTile::ImageTile(int number, QWidget *parent)
    : ShadowFrame(parent)
    , m_number(number)
    , m_picture(new TilePicture(this))
    , m_caption(new QLabel(this))
    , m_choose(newIconButton(QStringLiteral("imageButton%1").arg(number), QStringLiteral("folder-open.png"), this))
    , m_delete(newIconButton(QStringLiteral("imageDeleteButton%1").arg(number), QStringLiteral("delete.png"), this))
{
    setObjectName(QStringLiteral("imageTile%1").arg(number));
    m_picture->setObjectName(QStringLiteral("imageLabel%1").arg(number));
    setFocusProxy(m_picture);
    setAcceptDrops(true);
    setRaisedByHover(true);
    layOut();
    m_refusalTimer.setSingleShot(true);
    m_refusalTimer.setInterval(kRefusalTime);
    connect(&m_refusalTimer, &QTimer::timeout, this, [this] { m_picture->setDrop(TilePicture::Drop::None); });
    connect(m_choose, &QPushButton::clicked, this, &ImageTile::chooseRequested);
    connect(m_delete, &QPushButton::clicked, this, &ImageTile::deleteRequested);
    connect(m_picture, &TilePicture::clicked, this, [this] {
        if (picture().isNull())
            emit chooseRequested();
        else
            emit enlargeRequested();
    });
    retranslateUi();
}

void ImageTile::layOut()
{
    auto *foot = new QHBoxLayout;
    foot->setSpacing(kMargin);
    foot->addWidget(m_caption, 1);
    foot->addWidget(m_choose);
    foot->addWidget(m_delete);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    column->addWidget(m_picture, 1);
    column->addLayout(foot);
}

void ImageTile::setPicture(const QPixmap &picture, PictureState state, QSize size)
{
    if (picture.cacheKey() == this->picture().cacheKey() && state == m_state && size == m_size)
        return;
    m_state = state;
    m_size = size;
    m_picture->setPicture(picture);
    showState();
}

QPixmap ImageTile::picture() const
{
    return m_picture->picture();
}

QString ImageTile::sizeText() const
{
    const QString size = tr("%1 × %2 Bildpunkte").arg(m_size.width()).arg(m_size.height());
    return m_state == PictureState::Reduced ? size + tr(", verkleinert gezeigt") : size;
}

/// Empty for a picture that is shown.
QString ImageTile::notice() const
{
    switch (m_state) {
    case PictureState::TooLarge:
        return tr("Zu groß zum Anzeigen:") + QLatin1Char('\n') + sizeText();
    case PictureState::Undecodable:
        return tr("Das Bild in der Datei kann nicht gelesen werden. Es bleibt erhalten.");
    default:
        return {};
    }
}

void ImageTile::showState()
{
    const QString shown = sizeText() + QLatin1Char('\n') + tr("Klicken zum Vergrößern, Entf zum Löschen");
    m_delete->setVisible(isFull());
    m_choose->setToolTip(isFull() ? tr("Anderes Bild auswählen") : tr("Bild auswählen"));
    m_picture->setNotice(notice());
    if (!notice().isEmpty())
        m_picture->setToolTip(notice() + QLatin1Char('\n') + tr("Klicken für ein anderes Bild, Entf zum Löschen"));
    else
        m_picture->setToolTip(isFull() ? shown : tr("Bild auswählen, ablegen oder einfügen (Strg+V)"));
    if (isFull())
        m_picture->setAccessibleDescription(notice().isEmpty() ? sizeText() : notice());
    else
        m_picture->setAccessibleDescription(tr("kein Bild"));
}

void ImageTile::copy() const
{
    if (!picture().isNull())
        QGuiApplication::clipboard()->setPixmap(picture());
}

void ImageTile::paste()
{
    if (!take(QGuiApplication::clipboard()->mimeData()))
        refuse();
}

/// Files first: on some desktops a copied file comes with a picture of its icon.
bool ImageTile::take(const QMimeData *source)
{
    if (!source)
        return false;
    const QStringList files = pictureFiles(*source);
    const QImage image = files.isEmpty() ? qvariant_cast<QImage>(source->imageData()) : QImage();
    if (files.isEmpty() && image.isNull())
        return false;
    // Queued: the program that the picture comes from waits for the end of the drop, and a question may follow.
    const auto give = [this, files, image] {
        if (files.isEmpty())
            emit imageGiven(image);
        else
            emit filesGiven(files);
    };
    QMetaObject::invokeMethod(this, give, Qt::QueuedConnection);
    return true;
}

void ImageTile::refuse()
{
    m_picture->setDrop(TilePicture::Drop::Refused);
    m_refusalTimer.start();
}

// --- Keys, menu, drag and drop -----------------------------------------------------------------------------------

void ImageTile::keyPressEvent(QKeyEvent *event)
{
    const bool isDelete = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    if (event->matches(QKeySequence::Paste))
        paste();
    else if (event->matches(QKeySequence::Copy))
        copy();
    else if (isDelete && isFull())
        emit deleteRequested();
    else
        ShadowFrame::keyPressEvent(event);
}

void ImageTile::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isShown = !picture().isNull();
    const QMimeData *clipboard = QGuiApplication::clipboard()->mimeData();
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [this, menu](const QString &text, const char *icon, const QKeySequence &key, bool isEnabled,
                                  auto slot) {
        const QColor tint = isEnabled ? theme::qColorPrimary : theme::qColorMedium;
        QAction *action = menu->addAction(actionIcon(QLatin1String(icon), tint), text);
        action->setShortcut(key); // only shown in the menu; keyPressEvent() handles these keys
        action->setShortcutContext(Qt::WidgetShortcut);
        action->setEnabled(isEnabled);
        connect(action, &QAction::triggered, this, slot);
    };
    add(tr("&Vergrößern"), "magnify-plus.png", Qt::Key_Return, isShown, &ImageTile::enlargeRequested);
    add(tr("&Auswählen..."), "folder-open.png", {}, true, &ImageTile::chooseRequested);
    add(tr("&Einfügen"), "clipboard-text.png", QKeySequence::Paste, clipboard && hasPicture(*clipboard),
        &ImageTile::paste);
    add(tr("&Kopieren"), "image.png", QKeySequence::Copy, isShown, &ImageTile::copy);
    add(tr("&Speichern unter..."), "content-save-as.png", {}, isShown || m_state == PictureState::TooLarge,
        &ImageTile::saveRequested);
    add(tr("&Löschen..."), "delete.png", QKeySequence::Delete, isFull(), &ImageTile::deleteRequested);
    menu->popup(event->globalPos());
}

void ImageTile::dragEnterEvent(QDragEnterEvent *event)
{
    if (QApplication::activeModalWidget()) { // a question would open on top of the dialog
        event->ignore();
        return;
    }
    if (hasPicture(*event->mimeData())) {
        m_refusalTimer.stop();
        m_picture->setDrop(TilePicture::Drop::Welcome);
        event->setDropAction(Qt::CopyAction); // a file manager would delete what it moves
        event->accept();
        return;
    }
    event->ignore();
    if (!isProjectFile(*event->mimeData()))
        refuse();
}

void ImageTile::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    m_picture->setDrop(TilePicture::Drop::None);
}

void ImageTile::dropEvent(QDropEvent *event)
{
    m_picture->setDrop(TilePicture::Drop::None);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (!take(event->mimeData()))
        refuse();
}

// --- Texts -------------------------------------------------------------------------------------------------------

void ImageTile::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    ShadowFrame::changeEvent(event);
}

void ImageTile::retranslateUi()
{
    const QString name = tr("Bild %1").arg(m_number);
    m_caption->setText(name);
    m_picture->setAccessibleName(name);
    m_picture->setTexts(tr("Auswählen oder hier ablegen"), tr("Hier ablegen"), tr("Das ist kein Bild"));
    m_choose->setAccessibleName(tr("Bild %1 auswählen").arg(m_number));
    m_delete->setToolTip(tr("Bild löschen"));
    m_delete->setAccessibleName(tr("Bild %1 löschen").arg(m_number));
    showState();
}
