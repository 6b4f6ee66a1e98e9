#pragma once

#include "PrinterDoor.h"

#include <atomic>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

/// Stands in the door of the printer: answers its dialogs and keeps what arrives.
class FakePrinter : public PrinterDoor {
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
    QSizeF space{8 * TwipsPerInch, 10.5 * TwipsPerInch};
    PrintOutcome chance;  ///< what the printer's queue says before there is a document
    PrintOutcome outcome; ///< and what becomes of one
    /// Runs in the thread that hands over.
    std::function<void(const std::stop_token& stop)> whileHandingOver;
    int asked = 0;
    int setUp = 0;
    std::vector<PrintedPages> printed; ///< to be looked at when the job has ended
};

/// A server that takes a document and says nothing: until it is stopped.
inline void Hang(const std::stop_token& stop) {
    std::atomic_bool stopped = false;
    const std::stop_callback wake(stop, [&] {
        stopped = true;
        stopped.notify_one();
    });
    stopped.wait(false);
}
