#include "StoreTransaction.h"

namespace quend::registry {

bool StoreTransaction::Run(const std::function<void(KeyTree&)>& action) {
    if (!m_store) {
        return false;
    }
    try {
        action(m_store->Keys());
        return true;
    } catch (const StoreError& error) {
        m_error = error;
        Break();
        return false;
    }
}

bool StoreTransaction::Keep() {
    const bool kept = Run([this](KeyTree&) { m_store->Keep(); });
    Break();
    return kept;
}

} // namespace quend::registry
