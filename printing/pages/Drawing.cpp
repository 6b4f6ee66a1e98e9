#include "Drawing.h"

namespace quend::printing {

PrintedPages DrawWhole(Drawing& drawing) {
    while (drawing.DrawNext()) {
    }
    drawing.Finish();
    return drawing.Pages();
}

} // namespace quend::printing
