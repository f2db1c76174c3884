#pragma once

#include "appkit/QBSPSorterControlProtocol.h"
#include "platform/QBSPSorterControl.h"

namespace qbsp::appkit {

/// The host's registrar object, which the host owns.
class RegistrarAdapter final : public QBSPSorterControl {
  public:
    explicit RegistrarAdapter(QBSPRegistrar registrar) : registrar_(registrar) {}

    [[nodiscard]] QBSPRegistrar object() const { return registrar_; }

    /// The class that the object is of.
    [[nodiscard]] Class objectClass() const { return [registrar_ class]; }

    [[nodiscard]] bool applicationIsRegistered(const std::optional<platform::URL>& application) override;
    [[nodiscard]] bool registerApplication(const std::optional<platform::URL>& application) override;
    [[nodiscard]] bool unregisterApplication(const std::optional<platform::URL>& application) override;
    void showAccountsSystemPreferencePane() override;
    void showSorterApplication() override;
    void closeSorterApplication() override;

  private:
    QBSPRegistrar registrar_;
};

} // namespace qbsp::appkit
