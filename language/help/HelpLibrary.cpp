// The library Loan.Help.

#include "CompiledBook.h"
#include "HelpPart.h"

#include <QObject>

class HelpLibrary final : public QObject, public HelpPart {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID HelpPart_iid)
    Q_INTERFACES(HelpPart)

public:
    std::shared_ptr<HelpBook> Open(const QString& file) const override {
        return std::make_shared<CompiledBook>(file);
    }
};

#include "HelpLibrary.moc"
