#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/base/DWTBaseClass.h"
#include "platform/core/NotificationCenter.h"
#include "platform/ui/Alert.h"
#include "platform/ui/PopUpButton.h"
#include "platform/ui/TextField.h"
#include "settings/DWTDataManager.h"
#include "settings/Rules.h"

// Posted by a page after an edit, with the page as sender: something differs from the saved data,
// or nothing does.
inline const QString DWT_MainDialog_SendOK_Message =
    QStringLiteral("DWT_MainDialog_SendOK_Message");
inline const QString DWT_MainDialog_SendNG_Message =
    QStringLiteral("DWT_MainDialog_SendNG_Message");

// A setting page: fills the controls of one panel from the saved data of its category, checks what
// is typed, and writes it to the change data. The main window drives every page through the page
// protocol.
//
// What a page holds stands in its table, a row a value (addField(), addShown()); this class does
// once what is the same for every row. A page overrides what is peculiar to it. Main thread only.
class DWTBaseView : public DWTBaseClass, public TextFieldDelegate {
    DWT_SETUP(DWTBaseView, DWTBaseClass, TBV_Init, TBV_Dealloc)

  public:
    // The panel. The window that takes it into its page area owns it from then on; a panel that
    // nobody took goes with the page.
    QWidget *mainCustomView() const { return view_Base; }
    // The data manager that the page reads and writes; kept until another is handed over.
    void dataManagerObject(const std::shared_ptr<DWTDataManager> &manager) { ndm_Object = manager; }
    // The page's category in the record, and its name in the window.
    void SetViewKey(const QString &key) { string_ViewKey = key; }
    QString viewKey() const { return string_ViewKey; }
    // What the window calls the page; named in alerts about fields that other pages have as well.
    void setPageName(const QString &name) { m_pageName = name; }
    QString pageName() const { return m_pageName; }

    // --- Page protocol ---

    // Sets initial states; called once, when the panel is in its window. Nothing counts as filled
    // or touched then.
    virtual void initializeUI();
    // Fills the controls from the saved data; called after every reading of the printer.
    virtual void showDataManager();
    virtual void enableAllItems(bool enabled);
    // Of a page whose controls are all disabled, lets the values be selected, copied and read well;
    // off, the fields can be typed into again. Secrets stay as they are.
    void showForReading(bool reading);
    // Checks what is typed and shows an alert for what is wrong: one for all addresses, of which
    // the first wrong one is selected, then one for every other field. Numbers are forced into
    // their range. Disabled fields are not checked. False when something is wrong; every wrong
    // field is marked then.
    virtual bool itemInputCheck();
    // Whether a field is marked as wrong. A field is marked when its editing has ended, or the
    // check has failed, until it holds what can be used.
    bool hasFault() const;
    // Gives the focus to the first field that is marked, selected.
    void focusFirstFault();
    // Writes the controls' values to the change data.
    void itemSetToDataManager() { handOver(shownCategory()); }
    // False when the change alters the address or name by which the printer is reached.
    virtual bool itemConnectChangeCheck() { return true; }
    // True when the controls' values equal the saved data.
    bool itemCheckDifferentToDataManager() { return shownCategory() == savedCategory(); }

    // A value that differs from the saved one, in the words of the page. A secret has no old text,
    // and of the new one only says that there is one.
    struct Change {
        QString label;
        QString oldText;
        QString newText;
        bool isSecret = false;
    };
    // What differs, in the order of the page; empty when nothing does.
    virtual QList<Change> changes() const;

    // A value as the page shows it now, sent or not; MAC addresses with colons. Without a text
    // where the page shows none.
    struct Value {
        QString label;
        QString text;
    };
    // Every value of the page but its secrets, in the order of the page.
    QList<Value> values() const;

    // The name of the value of a record's key, in the words of the page; empty for a key that is
    // not the page's.
    QString labelOf(const QString &key) const;

    // --- Editing; also the delegate calls of the page's fields ---

    bool textShouldBeginEditing(TextField *control) override;
    // Stores the field in the change data, whatever it holds, and posts the record's state.
    bool textShouldEndEditing(TextField *control) override;
    // Takes out what an address or a number cannot hold, and posts whether the page differs, when
    // `control` is one of the page's own.
    void controlTextDidChange(TextField *control) override;

    // --- Checks (settings/Rules.h) on fields ---

    bool itemInputCheckString(const QLineEdit *field, const QString &characterSet, int min, int max,
                              bool input) const;
    bool itemInputCheckAddress(const QLineEdit *field, bool localhostCheck) const;
    bool isEqualAddress(const QStringList &address, const QStringList &printerAddress) const;
    // Shows that a field's text cannot be used, and why.
    void showInputError(Alert &alert, const QString &fieldName, const QString &rule) const;

    // An address of four parts with dots between them; "0.0.0.0" for any other count of parts.
    static QString addressNumberToString(const QStringList &address);

  protected:
    // A row of the table: a value of the category, and the control that shows it.
    struct Field {
        // Values and their controls: a text, an address or a number in a QLineEdit; a choice in a
        // RadioGroup (codes as tags) or a PopUpButton (codes as item data); a flag in a QCheckBox.
        // A MAC address is a text of twelve digits that are compared one by one.
        enum class Kind { Text, Address, Number, Choice, Flag, Mac };

        QWidget *control;
        QString key;  // in the record; empty when the record does not hold the value
        Kind kind = Kind::Text;
        bool *input = nullptr;             // set when the field was filled or touched
        std::function<bool()> store = {};  // at the end of editing; store(control) by default
        const Rules::Rule *rule = Rules::ruleOf(key);
        // Localisation key of its name in alerts and lists of changes; null: it is in neither.
        const char *nameKey = rule ? rule->nameKey : nullptr;
        const QStringList *items = nullptr;  // the titles of a choice by its codes
        bool edited = true;                  // false: shown, and never written

        QLineEdit *line() const { return static_cast<QLineEdit *>(control); }
        bool isText() const { return kind != Kind::Choice && kind != Kind::Flag; }
    };
    using Kind = Field::Kind;

    // Adds a row. The page becomes the delegate of a text field.
    void addField(Field field);
    // Adds the row of a choice: its name, and the titles of its codes where the control may not
    // have them all.
    void addChoice(QWidget *control, const QString &key, const char *nameKey,
                   const QStringList *items = nullptr);
    // Adds a row that only shows its value, as text: `items` are the texts of a choice. Without a
    // key the control keeps the text that it has.
    void addShown(QLineEdit *control, const QString &key, Kind kind = Kind::Text,
                  const QStringList *items = nullptr);
    const std::vector<Field> &fields() const { return m_fields; }
    // The row of a control; a null pointer when it is none of the page's.
    const Field *fieldOf(const QWidget *control) const;

    // --- What a page may do in its own way ---

    // Shows the value of a row from the page's category. One that is missing there empties a field,
    // and leaves radio buttons as they are.
    virtual void fill(const Field &field);
    // Shows a text, or nothing, in a row's line; it counts as filled when it is not empty.
    static void fillText(const Field &field, const QString &shown);
    // Whether what a row shows counts; otherwise its saved value does.
    virtual bool isUsed(const Field &) const { return true; }
    // Whether what a field holds keeps its rule.
    virtual bool passes(const Field &field) const;
    // Why what a field holds cannot be used, in words; empty when it can, or does not count.
    virtual QString faultOf(const Field &field) const;
    // The user begins to edit, or `ended` to edit, a field.
    virtual void markInput(const Field &field, bool ended);
    // The saved category with what the page shows now. A code that no choice stands for stays.
    virtual CategoryDictionary shownCategory() const;
    virtual Alert::Style alertStyle() const { return Alert::Style::Warning; }

    // --- What every page does with its category ---

    // Puts what a row shows into the page's category and hands that over. Always true.
    bool store(const QWidget *control);
    // The saved category; empty when there is none.
    CategoryDictionary savedCategory() const;
    // Hands a category over as change data.
    void handOver(const CategoryDictionary &category);
    // Listens to the text changes of every field.
    void notificationManager();
    // Takes characters other than digits and dots out of the field.
    void checkIPtextField(TextField *field) const;
    // Takes characters other than digits out of the field.
    void checkCountTextField(TextField *field) const;
    // Posts whether the whole record differs from the saved data.
    void sendNotificationSendOK();

    // The lists of localisation keys of a property list of items, by their keys there.
    static QStringList itemList(const QVariantMap &lists, const char *key) {
        return lists.value(QLatin1String(key)).toStringList();
    }
    // Makes `keys` the items of a pop-up; the first has the code `firstCode`.
    static void offer(QComboBox *popup, const QStringList &keys, int firstCode = 0);

    QPointer<QWidget> view_Base;
    std::shared_ptr<DWTDataManager> ndm_Object;
    QString string_ViewKey;
    // The page's working copy of its category, into which single edits go.
    CategoryDictionary mutableDictionary_ViewSettings;

  private:
    // What a row shows; nothing when no item of a choice is selected. A text that was not changed
    // is the saved one.
    std::optional<SettingValue> valueOf(const Field &field) const;
    // Whether a row shows what it shows when its value is missing.
    bool showsNothing(const Field &field) const;
    // What a row is called, in the words of the page.
    QString labelOf(const Field &field) const;
    // What a row's control shows, as a person reads it.
    static QString shownTextOf(const Field &field);
    // A value of a row as a person reads it.
    QString textOf(const Field &field, const CategoryDictionary &category) const;
    // The localised rule that what a field holds breaks; empty when it breaks none.
    QString brokenRuleOf(const Field &field) const;
    bool isUnchangedText(const Field &field) const;
    // Whether the printer did not tell the value of a row, and nobody entered one.
    bool isUnknown(const Field &field) const;
    bool checkAddresses(Alert &alert) const;
    // Marks what is wrong among the fields that are marked already, or among all.
    void updateMarks(bool all = false);
    TextField *firstFault() const;
    void forceIntoRange(const Field &number) const;
    void postSendState(bool unchanged);

    std::vector<Field> m_fields;
    QString m_pageName;
    NotificationCenter::Observer m_textChanges;
};
