#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <memory>

#include "app/base/DWTBaseClass.h"
#include "platform/core/NotificationCenter.h"
#include "platform/ui/Alert.h"
#include "platform/ui/TextField.h"
#include "settings/DWTDataManager.h"

// Posted by a page after an edit, with the page as sender: something differs from the saved data,
// or nothing does.
inline const QString DWT_MainDialog_SendOK_Message =
    QStringLiteral("DWT_MainDialog_SendOK_Message");
inline const QString DWT_MainDialog_SendNG_Message =
    QStringLiteral("DWT_MainDialog_SendNG_Message");

// A setting page: fills the controls of one panel from the saved data of its category, checks what
// is typed, and writes it to the change data. The main window drives every page through the page
// protocol. Main thread only.
class DWTBaseView : public DWTBaseClass, public TextFieldDelegate {
  public:
    ~DWTBaseView() override;
    bool init() override;

    // The panel. The window that takes it into its page area owns it from then on; a panel that
    // nobody took goes with the page.
    QWidget *mainCustomView() const;
    // The data manager that the page reads and writes; kept until another is handed over.
    void dataManagerObject(const std::shared_ptr<DWTDataManager> &manager);
    // The page's category in the record, and its name in the window.
    void SetViewKey(const QString &key);
    QString viewKey() const;

    // --- Page protocol ---

    // Sets texts and initial states; called once, when the panel is in its window.
    virtual void initializeUI() {}
    // Fills the controls from the saved data; called after every reading of the printer.
    virtual void showDataManager() {}
    virtual void enableAllItems(bool) {}
    // Checks what is typed and shows an alert for what is wrong. False when something is.
    virtual bool itemInputCheck() { return true; }
    // Writes the controls' values to the change data.
    virtual void itemSetToDataManager() {}
    // False when the change alters the address or name by which the printer is reached.
    virtual bool itemConnectChangeCheck() { return true; }
    // True when the controls' values equal the saved data.
    virtual bool itemCheckDifferentToDataManager() { return true; }

    // --- Checks, also used by what a page is made of ---

    // Whether the text has `min` to `max` characters (UTF-16 units), all among `characterSet`. The
    // minimum counts only when `input` is true: the field was filled or touched.
    bool itemInputCheckString(const QLineEdit *field, const QString &characterSet, int min, int max,
                              bool input) const;
    // Whether the text is an IPv4 address of four parts from 0 to 255 that is neither 0.0.0.0 nor
    // 255.255.255.255 nor, with `localhostCheck`, 127.0.0.1.
    bool itemInputCheckAddress(const QLineEdit *field, bool localhostCheck) const;
    // Whether the four parts of two addresses are the same numbers; both need four parts.
    bool isEqualAddress(const QStringList &address, const QStringList &printerAddress) const;
    // Shows that a field's text cannot be used, and why.
    void showInputError(Alert &alert, const QString &fieldName, const QString &rule) const;

  protected:
    // A text field with its input flag, its key in the record, the rule of its text and what is
    // said of a wrong one.
    struct CheckedField {
        TextField *field;
        bool *input;
        QString key;
        QString characters;
        int min;
        int max;
        QString messageKey;
        QString informationKey;
    };
    // Whether the field is disabled or keeps its rule; shows the alert when not.
    bool checkField(const CheckedField &checked, Alert &alert) const;

    // Takes characters other than digits and dots out of the field.
    void checkIPtextField(TextField *field) const;
    // Posts whether the whole record differs from the saved data.
    void sendNotificationSendOK();

    // What every page does with its category: the saved one (empty when there is none), handing one
    // over as change data, and posting whether the page differs from the saved one.
    CategoryDictionary savedCategory() const;
    void handOver(const CategoryDictionary &category);
    void postSendState(bool unchanged);
    // Calls controlTextDidChange() for the text changes of every field while the token lives.
    [[nodiscard]] NotificationCenter::Observer observeTextChanges();

    QPointer<QWidget> view_Base;
    std::shared_ptr<DWTDataManager> ndm_Object;
    QString string_ViewKey;

  private:
    bool TBV_Init();
    void TBV_Dealloc();
};
