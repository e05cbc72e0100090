#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "app/base/DWTBaseClass.h"
#include "link/DWTCommunicationControl.h"
#include "settings/ItemCodec.h"
#include "settings/SendWarnings.h"
#include "settings/SettingKeys.h"
#include "settings/SettingRecord.h"
#include "settings/Settings.h"

// What happened in a send.
struct SendReport {
    enum class Login { Passed, Refused, NoReply };
    Login login = Login::Passed;  // unless passed, nothing was written
    bool unreached = false;       // the printer could not be connected, and nothing was written
    // The connection was lost before the update: nothing was applied.
    bool lost = false;
    // The items that the printer refused, or that do not fit into a frame.
    QList<ItemCode> refused;
    // The items without a usable reply: the printer may have taken them.
    QList<ItemCode> unclear;

    bool isComplete() const;
    // Whether the item was written and accepted, or not written at all.
    bool isClean(ItemCode code) const;
};

// The settings of one printer: what it reported (saved data), what the user entered (change data),
// and every exchange that fills the one and writes the other. It owns the link to the printer.
//
// Made with the plain init() it has no link; every exchange then fails as its result says. All
// operations are called on one thread, and wait there for the printer, as long as the link's calls
// take. Only sendDataToPrinter() runs on a thread of its own; while it does, no other operation is
// called. Data managers of different printers can be used on different threads at a time.
class DWTDataManager : public DWTBaseClass, public std::enable_shared_from_this<DWTDataManager> {
    DWT_SETUP(DWTDataManager, DWTBaseClass, NDM_Init, NDM_Dealloc)

  public:
    // A data manager for the printer of `entry`; a null pointer when the link cannot be made.
    static std::shared_ptr<DWTDataManager> dataManager(const PrinterEntry &entry);

    // --- The record (DWTDataManager.cpp) ---

    // The saved category of a view key; nothing when it is absent.
    std::optional<CategoryDictionary> setupDataToMainView(const QString &viewKey) const;
    // The change category of a view key; nothing when it is absent.
    std::optional<CategoryDictionary> setupDataFromChangeData(const QString &viewKey) const;
    // Replaces the change category of a view key; stores nothing while there is no change data.
    // Always 0.
    int setupDataFromMainView(const CategoryDictionary &category, const QString &viewKey);
    // True when all seven categories are present in both records and equal.
    bool isEqualToSaveData() const;
    // What a person should know before the change data is sent; nothing without a record.
    QList<SendWarning> warnings() const;

    // --- Reading (DWTDataManagerReading.cpp) ---

    // Told how many parts of how many are behind; may be empty.
    using Progress = std::function<void(int done, int total)>;

    // Reads every setting and makes both records anew; `progress` is told before each request. The
    // number is not used. Result: 0 every request was answered; 1 there is no link; 6 at least one
    // request got no reply (its value and those after it have their defaults), which is also what a
    // wait that is cancelled looks like; otherwise the link's result of connecting.
    int setupDataFromPrinter(int, const Progress &progress = {});
    // The items that a send writes and that the last reading asked for without getting their value:
    // the record holds a default, or nothing. They are not sent until the record is changed.
    QList<ItemCode> notTold() const;
    // Whether the record's value of a key is the printer's own: what it told or accepted.
    bool isTold(const QString &key) const;
    // How often a search for networks is asked whether it has finished, and how long it is waited
    // between two polls.
    static constexpr int scanPolls = 10;
    static constexpr std::chrono::milliseconds defaultScanInterval{1000};
    // The networks that the printer finds, in its order; empty when it found none or did not finish
    // in scanPolls polls, or the wait was cancelled; nothing when it cannot be connected or closes
    // the connection. `progress` is told before each poll.
    std::optional<QList<SSIDEntry>> SSIDList(const Progress &progress = {});
    // Waits another time than defaultScanInterval between two polls; for tests.
    void setScanInterval(std::chrono::milliseconds interval) { m_scanInterval = interval; }

    // --- Sending (DWTDataManagerSending.cpp) ---

    // Writes the change data to the printer on a thread of its own, which keeps this object alive,
    // and returns at once. Reports by the notifications DWT_DataSend_Start_Message (0),
    // DWT_DataSend_Progress_Message (16, 33, 50, 66, 85, 100) and DWT_DataSend_Stop_Message (0; 1
    // when no thread or the printer could not be had, or the connection was lost before anything
    // was applied), each handled on the main thread before the send goes on, with this object as
    // sender and the MSW_Searching_Value_ numbers. The saved data then holds what the printer
    // accepted. Not to be called again before the stop.
    void sendDataToPrinter();
    // The same on the calling thread; returns after the stop. On another thread than the main one,
    // the main thread must run an event loop meanwhile.
    void sendDataToPrinterAndWait() { NDM_SendDataToPrinterThread(); }
    // What happened in the last send; written until its stop.
    const SendReport &sendReport() const { return m_report; }

    // --- Printers (DWTDataManagerPrinters.cpp) ---

    // The supported printers that are listed, none of which is asked for anything; only USB
    // printers in installer mode.
    QList<PrinterEntry> supportedPrinters();
    // The supported printers that can be reached, USB printers with their own name under
    // PrinterKey::MachineName; only USB printers in installer mode. Nothing when no link can be
    // made. `found` is told of each, in order, as soon as it has answered; a wait that is cancelled
    // leaves out those that have not.
    std::optional<QList<PrinterEntry>> printerList(
        const std::function<void(const PrinterEntry &)> &found = {});
    // Why printers may be missing from the last printerList(), unusable lists of models included.
    QList<PrinterProblem> printerProblems();
    // Whether printers came or went since the last printerList(). Asks no printer.
    bool hasPrinterListChanged();
    // The name of the printer of `entry`, asked through `link`; " " when it cannot be read.
    QString printerName(const std::shared_ptr<DWTCommunicationControl> &link,
                        const PrinterEntry &entry);
    // Whether a printer answers at the address of exactly four parts; negative when not, when there
    // are not four parts, or without a link.
    int isCheckConnectToPrinter(const QStringList &address);

    // --- Connection, password state and login (DWTDataManagerLogin.cpp) ---

    // 2: an administrator password is set; 3: none is set; 1: the printer cannot be connected or
    // gives no usable answer.
    int isPassword();
    // Tries a password; an accepted one is kept for the next send. Call it between connectPrinter()
    // and disconnectPrinter().
    WriteResult checkLoginPassword(const QString &password);
    // The link's results, 0 = connected; 1 without a link.
    int connectPrinter();
    void disconnectPrinter();
    // The status length (bytes) of the printer's model, for the link.
    void qkStatusLength(int length);

  private:
    bool NDM_InitMember(const PrinterEntry &entry);

    // Command frames: each installs one into the link; true when it could not be stored.
    bool NDM_SetCommandSettingStart(DWTCommunicationControl &link);
    bool NDM_SetCommandSettingEnd(DWTCommunicationControl &link);
    bool NDM_SetCommandSettingUpDate(DWTCommunicationControl &link);
    // All three, and the command list when all could be stored; false when one could not.
    bool installCommands(DWTCommunicationControl &link);

    // One request; an empty reply clears the read-failure flag.
    QByteArray NDM_SendCommandSettingRequest(ItemCode code);
    WriteResult NDM_ResultDataToInteger(const std::optional<QByteArray> &reply, ItemCode code);
    // Items as values; each asks nothing while the read-failure flag is cleared. A value that
    // cannot be read is " ", 0 or nothing.
    QString NDM_DataToString(ItemCode code);
    int NDM_DataToInteger(ItemCode code);
    QString NDM_DataToStringAndLength(ItemCode code);
    QString NDM_DataToMacAddress(ItemCode code);
    QString NDM_DataToSoftwareVersion(ItemCode code);
    std::optional<CategoryDictionary> NDM_DataToArray(ItemCode code);
    std::optional<CategoryDictionary> NDM_DataToIntegerAndArray(ItemCode code);
    // One request through the decoder; nothing while the read-failure flag is cleared.
    template <typename Value>
    std::optional<Value> ask(ItemCode code,
                             std::optional<Value> (*decoder)(const QByteArray &, ItemCode));
    // Asks whatever the flag says.
    std::optional<QList<SSIDEntry>> NDM_SSIDInfo(ItemCode code);
    QString NDM_DataToPrinterName(const std::shared_ptr<DWTCommunicationControl> &link);

    // What an item holds, under its keys; without what cannot be read.
    CategoryDictionary valuesOf(const Item &item);
    // The categories, on a connected link: every item of one, in the order of the wire.
    CategoryDictionary readCategory(const QString &viewKey);
    CategoryDictionary NDM_NetworkDataFromPrinter();
    CategoryDictionary NDM_WirelessDataFromPrinter();
    CategoryDictionary NDM_InfrastructureDataFromPrinter();
    CategoryDictionary NDM_SimpleAPDataFromPrinter();
    CategoryDictionary NDM_EthernetDataFromPrinter();
    CategoryDictionary NDM_PasswordDataFromPrinter();
    CategoryDictionary NDM_FirmwareDataFromPrinter();
    std::optional<QList<SSIDEntry>> NDM_DataToSSIDArray(const Progress &progress);

    // Notes whether a reply told the value of an item that a send writes.
    void noteTold(ItemCode code, const QByteArray &reply);
    // Forgets what was told of items whose values did not get into the record.
    void forgetMissing();

    // Items written.
    WriteResult NDM_StringToData(ItemCode code, const QString &text);
    WriteResult NDM_IntegerToData(ItemCode code, int value);
    WriteResult NDM_StringAndLengthToData(ItemCode code, const QString &text);
    WriteResult NDM_IntegerAndStringAndLengthToData(ItemCode code, int value, const QString &text);
    WriteResult NDM_DataToData(ItemCode code, const QByteArray &bytes);
    WriteResult NDM_IntegerAndArrayToData(ItemCode code, int value, const QStringList &first,
                                          const QStringList &second, const QStringList &third);
    WriteResult sendFrame(ItemCode code, std::optional<QByteArray> frame);

    // The send, on its own thread.
    void NDM_SendDataToPrinterThread();
    void NDM_ProgressSetting(const QString &notification, double step);
    bool sendLogin();
    // What the saved data becomes when the send is applied: the saved record, and m_told, with what
    // the printer accepted.
    struct Accepted {
        SettingRecord record;
        QMap<ItemCode, QByteArray> told;
    };
    Accepted sendCategories();
    bool isUsed(const Item &item) const;
    // Writes one item of the change data.
    void send(const Item &item, Accepted &accepted);
    bool isWorthSending(const Item &item) const;
    WriteResult write(const Item &item, const CategoryDictionary &change, bool changed);
    void report(ItemCode code, const WriteResult &result);
    CategoryDictionary changeOf(const QString &viewKey) const;
    CategoryDictionary savedOf(const QString &viewKey) const;

    bool NDM_InitMemberToPrinterList(const std::shared_ptr<DWTCommunicationControl> &link,
                                     const PrinterEntry &entry);

    std::optional<SettingRecord> dictionary_SaveData;
    std::optional<SettingRecord> mutableDictionary_ChangeData;
    std::shared_ptr<DWTCommunicationControl> ncc_Object;
    // The categories as last read.
    CategoryDictionary networkData_Dictionary;
    CategoryDictionary wirelessData_Dictionary;
    CategoryDictionary infrastructureData_Dictionary;
    CategoryDictionary simpleAPData_Dictionary;
    CategoryDictionary ethernetData_Dictionary;
    CategoryDictionary firmwareData_Dictionary;
    CategoryDictionary passwordData_Dictionary;
    // True while every request since the last full read got a reply, but for those outside it whose
    // wait was cancelled.
    bool resultSettingRequest_BOOL = false;
    // Password of the last successful login; consumed by the next send.
    QString loginPassword_String;
    // What the printer told or accepted, by item: the very bytes of its value.
    QMap<ItemCode, QByteArray> m_told;
    QSet<ItemCode> m_asked;  // by the last reading
    Progress m_progress;     // of the reading
    SendReport m_report;
    std::chrono::milliseconds m_scanInterval = defaultScanInterval;
};
