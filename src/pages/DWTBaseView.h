#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

#include "app/base/DWTBaseClass.h"
#include "pages/Field.h"
#include "pages/TextFilter.h"
#include "platform/core/Key.h"
#include "platform/ui/Alert.h"
#include "platform/ui/PopUpButton.h"
#include "platform/ui/TextField.h"
#include "settings/DWTDataManager.h"
#include "settings/SendWarnings.h"

// Posted by a page after an edit, as sender: something differs from the saved data, or nothing.
DWT_KEY(DWT_MainDialog_SendOK_Message);
DWT_KEY(DWT_MainDialog_SendNG_Message);

// A setting page: fills the controls of one panel from the saved data of its category, checks
// input, and writes it to the change data. A page has a table with a row a setting (addField(),
// addShown()); this class does once what is the same for every row. Main thread only.
class DWTBaseView : public DWTBaseClass, public TextFieldDelegate {
    DWT_SETUP(DWTBaseView, DWTBaseClass, TBV_Init, TBV_Dealloc)

  public:
    // The panel; the window that takes it owns it, one that nobody took goes with the page.
    QWidget *mainCustomView() const { return view_Base; }
    // The data manager that the page reads and writes; kept until another is handed over.
    void dataManagerObject(const std::shared_ptr<DWTDataManager> &manager) { ndm_Object = manager; }
    // The page's category in the record, and its name in the window.
    void SetViewKey(const QString &key) { string_ViewKey = key; }
    QString viewKey() const { return string_ViewKey; }
    // What the window calls the page; named in alerts about fields that other pages have as well.
    QString pageName() const { return titleOfPage(string_ViewKey); }

    // --- Page protocol ---

    // Sets initial states, once, when the panel is in its window. Nothing counts as touched then.
    virtual void initializeUI();
    // Fills the controls from the saved data; called after every reading of the printer.
    virtual void showDataManager();
    virtual void enableAllItems(bool enabled);
    // Lets the values of a disabled page be selected and read well, or ends that. Not the secrets.
    void showForReading(bool reading);
    // Puts back what was read, as an edit of the user's.
    virtual void revert();
    // Follows the saved data after a send: what counts as changed, and what is said of it.
    void followSavedData();
    // Masks the secrets that are shown.
    void coverSecrets();
    // Checks the enabled fields. Alerts name what is wrong: one for all addresses, of which the
    // first wrong one is selected, then one a field. Numbers are forced into their range. False
    // when something is wrong; every wrong field is marked then.
    virtual bool itemInputCheck();
    // Whether a field is marked as wrong: from the end of editing, or a check, until it is mended.
    bool hasFault() const { return firstFault() != nullptr; }
    // Gives the focus to the first field that is marked, selected.
    void focusFirstFault();
    // Writes the controls' values to the change data.
    void itemSetToDataManager() { handOver(shownCategory()); }
    // False when the change alters the address or name by which the printer is reached.
    virtual bool itemConnectChangeCheck() { return true; }
    // True when the controls' values equal the saved data.
    bool itemCheckDifferentToDataManager() { return shownCategory() == savedCategory(); }

    // What only the page knows of its values, and is to be said before they are sent.
    virtual QList<SendWarning> ownWarnings() const { return {}; }
    // The saved category with what the page shows now. A code that no choice stands for stays.
    virtual CategoryDictionary shownCategory() const;

    // --- Editing; also the delegate calls of the page's fields ---

    bool textShouldBeginEditing(TextField *control) override;
    // Stores the field in the change data, whatever it holds, and posts the record's state.
    bool textShouldEndEditing(TextField *control) override;
    // Filters an address or a number, and posts whether the page differs.
    void controlTextDidChange(TextField *control) override;

    // --- Checks (settings/Rules.h) on fields ---

    bool itemInputCheckString(const QLineEdit *field, const QString &characterSet, int min, int max,
                              bool input) const {
        return Rules::isText(field->text(), characterSet, min, max, input);
    }
    bool itemInputCheckAddress(const QLineEdit *field, bool localhostCheck) const {
        return Rules::isAddress(field->text(), !localhostCheck);
    }
    bool isEqualAddress(const QStringList &address, const QStringList &printerAddress) const {
        return Rules::isSameAddress(address, printerAddress);
    }
    // Shows that a field's text cannot be used, and why.
    void showInputError(const QString &fieldName, const QString &rule) const;

    static QString addressNumberToString(const QStringList &address) {
        return shownAddress(address);
    }

  protected:
    // Adds the row of a control that edits a value; without a key, one that the record does not
    // hold.
    Field &addField(QWidget *control, const QString &key, bool *input = nullptr,
                    std::function<bool()> store = {});
    // Adds a row that only shows its value.
    void addShown(QLineEdit *control, const QString &key);
    const std::vector<Field> &fields() const { return m_fields; }
    // Shows or hides a control of the table, with its label.
    void showRow(const QWidget *control, bool on);
    // The row of a control; a null pointer when it is none of the page's.
    const Field *fieldOf(const QWidget *control) const;

    // --- What a page may do in its own way ---

    // Shows the value of a row from the page's category.
    virtual void fill(const Field &field) { field.show(mutableDictionary_ViewSettings); }
    // Whether what a row shows counts; otherwise its saved value does.
    virtual bool isUsed(const Field &) const { return true; }
    // Whether what a field holds keeps its rule.
    virtual bool passes(const Field &field) const;
    // Why what a field holds cannot be used, in words; empty when it can, or does not count.
    virtual QString faultOf(const Field &field) const { return brokenRuleOf(field); }
    // What is worth knowing of a value that can be used, in words; may be empty.
    virtual QString noticeOf(const Field &field) const;
    // Puts back what was read for a row, as an edit of the user's.
    virtual void putBack(const Field &field);
    // The user begins to edit, or `ended` to edit, a field.
    virtual void markInput(const Field &field, bool) {
        if (field.input) *field.input = true;
    }
    virtual Alert::Style alertStyle() const { return Alert::Style::Warning; }

    // --- What every page does with its category ---

    // Puts the saved value of a row into the page's category, and shows it; a secret is emptied.
    void restore(const Field &field);
    // Puts what a row shows into the page's category and hands that over. Always true.
    bool store(const QWidget *control);
    // The saved category; empty when there is none.
    CategoryDictionary savedCategory() const;
    // Hands a category over as change data.
    void handOver(const CategoryDictionary &category);
    // Makes the page hear of every change of its fields, as their delegate.
    void notificationManager();
    // Takes characters other than digits and dots out of the field.
    void checkIPtextField(TextField *field) const { filterText(field, Rules::addressCharacters); }
    // Takes characters other than digits out of the field.
    void checkCountTextField(TextField *field) const { filterText(field, Rules::digits); }
    // Posts whether the whole record differs from the saved data.
    void sendNotificationSendOK() { postSendState(ndm_Object && ndm_Object->isEqualToSaveData()); }

    // Makes `keys` the items of a pop-up; the first has the code `firstCode`.
    static void offer(QComboBox *popup, const QStringList &keys, int firstCode = 0);

    QPointer<QWidget> view_Base;
    std::shared_ptr<DWTDataManager> ndm_Object;
    QString string_ViewKey;
    // The page's working copy of its category, into which single edits go.
    CategoryDictionary mutableDictionary_ViewSettings;

  private:
    // What a row shows; a text that was not changed is the saved one.
    std::optional<SettingValue> valueOf(const Field &field) const;
    // The localised rule that what a field holds breaks; empty when it breaks none.
    QString brokenRuleOf(const Field &field) const;
    bool isUnchangedText(const Field &field) const;
    // Whether the printer did not report the value of a row, and nobody entered one.
    bool isUnknown(const Field &field) const;
    bool checkAddresses() const;
    // Lets the labels of all groups of the page end at one place.
    void alignLabels();
    Field &append(QWidget *control, const QString &key);
    // Marks what is wrong among the fields that are marked already, or among all.
    void updateMarks(bool all = false);
    // Says what is worth knowing of the values; `typing`: says nothing new.
    void updateNotices(bool typing = false);
    // Marks what differs from the saved data.
    void updateChanges();
    // What was read for a row that shows another value, in words; empty when it shows the same.
    QString changeOf(const Field &field) const;
    TextField *firstFault() const;
    // Forces a number into its range, and keeps in mind what to say of it.
    void forceIntoRange(const Field &number);
    // `typing`: the user has not left the field yet.
    void postSendState(bool unchanged, bool typing = false);

    std::vector<Field> m_fields;
    // What became of a field's value when its editing ended, until the value changes.
    QHash<const QWidget *, QString> m_said;
};
