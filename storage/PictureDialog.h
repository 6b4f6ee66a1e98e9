#pragma once

#include "PictureChooser.h"

#include <QStringList>

/// The toolkit's dialog for opening a file, or the desktop's own where there is one.
class PictureDialog : public PictureChooser {
public:
    QString Choose(QWidget& parent, const PictureRequest& request) override;

    /// The kinds of files offered, bitmaps first.
    static QStringList Filters();
};
