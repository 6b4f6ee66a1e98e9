#pragma once

#include "PdfDocument.h"
#include "PrinterInterface.h"
#include "QuendNames.h"

#include <QStringList>

#include <atomic>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

/// A test double for PrinterInterface: answers the dialogs and stores what is printed. A failure is
/// an exception that `whileAsking` or `whileHandingOver` throws.
class FakePrinter : public PrinterInterface {
public:
    std::optional<PrintOutcome> AskHowToPrint(QWidget& /*parent*/) override {
        ++asked;
        if (whileAsking) {
            whileAsking();
        }
        return answer ? std::optional(chance) : std::nullopt;
    }
    PrintOutcome AskSetUp(QWidget& /*parent*/) override {
        ++setUp;
        return chance;
    }
    /// Takes the first pages and lets the test go on from there; prints only if that says so.
    bool ShowPreview(QWidget& parent, const Preview& preview) override {
        titles << preview.title;
        previewed.push_back(preview.draw(SpaceOf(page)));
        return whilePreviewing && whilePreviewing(parent, preview);
    }
    QPageLayout Page() override { return page; }
    QSizeF PageSpace() override { return space; }
    HandOver Document(const PrintedPages& pages) override {
        return [this, pages](const std::stop_token& stop) {
            if (whileHandingOver) {
                whileHandingOver(stop);
            }
            if (outcome.fault == PrintFault::None && !stop.stop_requested()) {
                printed.push_back(pages);
            }
            return outcome;
        };
    }

    bool answer = true;
    std::function<void()> whileAsking;
    std::function<bool(QWidget& parent, const Preview& preview)> whilePreviewing;
    QPageLayout page{QPageSize(QPageSize::Letter), QPageLayout::Portrait, {18, 18, 18, 18}};
    QSizeF space{8 * TwipsPerInch, 10.5 * TwipsPerInch};
    PrintOutcome chance;  ///< the state of the printer's queue before a document is sent
    PrintOutcome outcome; ///< the result of sending a document
    /// Runs in the sending thread.
    std::function<void(const std::stop_token& stop)> whileHandingOver;
    int asked = 0;
    int setUp = 0;
    QStringList titles;                  ///< of the previews
    std::vector<PrintedPages> previewed; ///< their first pages
    std::vector<PrintedPages> printed;   ///< read it only after the job has ended
};

/// A server that accepts a document and does not answer until it is stopped.
inline void Hang(const std::stop_token& stop) {
    std::atomic_bool stopped = false;
    const std::stop_callback wake(stop, [&] {
        stopped = true;
        stopped.notify_one();
    });
    stopped.wait(false);
}
