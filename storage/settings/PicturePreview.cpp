#include "PicturePreview.h"

#include "Language.h"
#include "PictureFile.h"
#include "StorageNames.h"
#include "TextNumbers.h"

#include <QEvent>
#include <QImageReader>
#include <QPainter>
#include <QPixmap>

namespace quend::storage {

namespace {

/// No preview on any screen is larger than this, in pixels.
constexpr QSize FinestSample(1600, 1200);

/// The number of pixels that fit into Qt's memory limit for one image. A format that can be read at
/// the size of the preview would bypass that limit, though the window could not display the
/// picture.
constexpr qint64 MostPixels = qint64{128} * 1024 * 1024 / 4;

QSize ShrunkInto(const QSize& box, const QSize& size) {
    const bool fits = size.width() <= box.width() && size.height() <= box.height();
    return fits ? size : size.scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

struct Sample {
    QImage picture; ///< null when the file cannot be displayed
    QSize ownSize;
};

Sample ReadSample(const QString& path) {
    QImageReader reader(path);
    if (!PictureFile::IsSafe(reader)) {
        return {};
    }
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() > MostPixels) {
        return {};
    }
    if (size.isValid()) {
        reader.setScaledSize(ShrunkInto(FinestSample, size));
    }
    const QImage picture = reader.read();
    const bool isTurned = (reader.transformation() & QImageIOHandler::TransformationRotate90) != 0;
    const QSize ownSize = isTurned ? size.transposed() : size;
    return {picture, size.isValid() ? ownSize : picture.size()};
}

} // namespace

PicturePreview::PicturePreview(QWidget* parent) : QLabel(parent) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setMargin(4);
    // The widget's size determines the picture's size, never the other way round.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PicturePreview::sizeHint() const {
    const int line = fontMetrics().lineSpacing();
    return {28 * line, 13 * line};
}

void PicturePreview::ShowFile(const QString& path) {
    const Sample sample = path.isEmpty() ? Sample() : ReadSample(path);
    m_picture = sample.picture;
    m_ownSize = sample.ownSize;
    const bool isCutOff = !m_picture.isNull() && PictureFile::IsCutOff(path);
    m_note = isCutOff ? GetResourceText(TextNumber::PictureCutOff) : QString();
    if (m_picture.isNull()) {
        setText(
            GetResourceText(path.isEmpty() ? TextNumber::NoPicture : TextNumber::PictureNotShown));
    } else {
        ShowPicture();
    }
    setAccessibleDescription(text() + m_note);
}

/// Draw the note on the window colour, so that it is readable over any picture.
void PicturePreview::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!m_note.isEmpty()) {
        QPainter painter(this);
        const int flags = static_cast<int>(Qt::AlignHCenter) | static_cast<int>(Qt::TextWordWrap);
        QRect place = painter.boundingRect(contentsRect(), flags, m_note);
        place = QRect(contentsRect().left(), contentsRect().bottom() - place.height(),
                      contentsRect().width(), place.height() + 1);
        painter.fillRect(place, palette().window());
        painter.drawText(place, flags, m_note);
    }
}

void PicturePreview::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    if (!m_picture.isNull()) {
        ShowPicture();
    }
}

void PicturePreview::ShowPicture() {
    const int margins = 2 * margin();
    const QSize room = contentsRect().size() - QSize(margins, margins);
    const QSize shown = ShrunkInto(room.expandedTo(QSize(1, 1)), m_ownSize);
    QPixmap pixmap = QPixmap::fromImage(m_picture.scaled(
        shown * devicePixelRatioF(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(pixmap);
}

} // namespace quend::storage
