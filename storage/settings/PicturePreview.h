#pragma once

#include <QImage>
#include <QLabel>

namespace quend::storage {

/// A preview of a picture file: the whole picture in its proportions, never enlarged. Shows a text
/// when there is no picture, when the file cannot be displayed, or when the picture is cut off. A
/// damaged or huge file costs neither time nor memory.
class PicturePreview : public QLabel {
    Q_OBJECT

public:
    explicit PicturePreview(QWidget* parent = nullptr);

    /// An empty path means no picture.
    void ShowFile(const QString& path);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return false; }
    QSize minimumSizeHint() const override { return sizeHint() / 2; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void ShowPicture();

    QImage m_picture; ///< no larger than any preview needs
    QSize m_ownSize;
    QString m_note; ///< the message about a picture that is shown
};

} // namespace quend::storage
