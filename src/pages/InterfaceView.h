#pragma once

#include <QAbstractButton>
#include <QLabel>

#include "pages/DWTBaseView.h"
#include "platform/ui/FieldNote.h"
#include "platform/ui/RadioGroup.h"

// A page of a network interface: its address setup and the test of its connection. In automatic
// setup the disabled address fields show the addresses in use.
class InterfaceView : public DWTBaseView {
    Q_OBJECT
  public:
    void initializeUI() override;
    void showDataManager() override;
    void enableAllItems(bool enabled) override;
    bool itemConnectChangeCheck() override;
    bool textShouldBeginEditing(TextField *control) override;
    void controlTextDidChange(TextField *control) override;

    // Shows whether a printer answered at the address that the window tested.
    void showConnectResult(bool online);
    // Disabled, the button and the text below it say why.
    void settingConnectButtonEnable(bool enabled);
    // The typed address, split at its dots.
    QStringList getipAddressArray() const { return m_controls.address->text().split(u'.'); }

  Q_SIGNALS:
    // The user asks for a test of the printer's address.
    void connectRequested();

  protected:
    // Adds the row of an address with its keys: configured, and in use.
    void addAddress(TextField *field, const QString &key, const QString &keyInUse, bool *input,
                    std::function<bool()> store);

    // The controls of an interface; the choice has a row in the page's table.
    struct Controls {
        RadioGroup *choice;
        TextField *address;  // the printer's own
        QLabel *state;
        QAbstractButton *connect;
        FieldNote *whyNot;  // why `connect` is disabled
        // Localisation keys of the two results of a test.
        const char *online;
        const char *offline;
    };
    void setControls(const Controls &controls);

    // The action of the choice: puts it into the change data, in manual setup with the typed
    // addresses, in automatic setup with the saved ones. The fields keep their texts.
    void chooseAddressSetup();
    // Address fields are usable in manual setup only.
    void selectAddressSettingInput();

    // Takes back what the last test said: it does not hold for another address or network.
    void forgetConnectResult() { m_controls.state->setText(m_untested); }

    void fill(const Field &field) override;
    void putBack(const Field &field) override;
    bool isUsed(const Field &field) const override { return !field.isAddress() || !isAutomatic(); }

  private:
    bool isAutomatic() const {
        return m_controls.choice->selectedTag() == AddressSetting::Automatic;
    }

    Controls m_controls{};
    QString m_untested;                  // what the state says before a test
    QMap<QString, QString> m_keysInUse;  // by the configured address's key
};
