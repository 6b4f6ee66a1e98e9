#pragma once

#include "PictureChooser.h"

#include <QStringList>

namespace quend::storage {

/// Qt's dialog for opening a file, or the native one of the desktop where available.
class PictureDialog : public PictureChooser {
public:
    QString Choose(QWidget& parent, const PictureRequest& request) override;

    /// The file name filters, bitmaps first.
    static QStringList Filters();
};

} // namespace quend::storage
