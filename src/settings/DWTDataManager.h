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
#include "settings/Ending.h"
#include "settings/ItemCodec.h"
#include "settings/SettingKeys.h"

// The settings of one printer: as reported (saved data) and as entered (change data), and the
// exchanges between them and the printer. Made with the plain init() it has no link; exchanges then
// fail.
// One thread at a time calls it, and waits for the printer. While a send runs no other operation is
// called. Data managers of different printers can run at a time.
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
    // Replaces a change category; stores nothing while there is no change data. Always 0.
    int setupDataFromMainView(const CategoryDictionary &category, const QString &viewKey);
    // True when all seven categories are present in both records and equal.
    bool isEqualToSaveData() const;
    // Both records; empty without one.
    SettingRecord savedData() const { return dictionary_SaveData.value_or(SettingRecord()); }
    SettingRecord changeData() const {
        return mutableDictionary_ChangeData.value_or(SettingRecord());
    }
    // Takes over what another data manager has read of the printer's item, as saved data.
    void adopt(const Item &item, const DWTDataManager &other);

    // --- Reading (DWTDataManagerReading.cpp) ---

    // Told how many parts of how many are behind; may be empty.
    using Progress = std::function<void(int done, int total)>;

    // Reads every setting and makes both records anew; `progress` comes before each request. The
    // number is not used. Result: 0 all answered; 1 no link; 6 a request got no reply (its value
    // and those after it are defaults), or the wait was cancelled; otherwise the link's result of
    // connecting.
    int setupDataFromPrinter(int, const Progress &progress = {});
    // The sent settings that the last reading asked for in vain: the record holds a default, or
    // nothing, which is not sent.
    QList<const Setting *> notReported() const;
    // Whether the record's value of a key is the printer's own, which it reported or accepted.
    bool isReported(const QString &key) const;
    // Polls of a search for networks, and the time between two.
    static constexpr int scanPolls = 10;
    static constexpr std::chrono::milliseconds defaultScanInterval{1000};
    // The networks that the printer finds; empty when there are none. Nothing when the printer
    // cannot be connected, falls silent, does not finish within scanPolls polls, leaves out a part
    // of the list, or the wait was cancelled.
    std::optional<QList<SSIDEntry>> SSIDList(const Progress &progress = {});
    // Waits another time than defaultScanInterval between two polls; for tests.
    void setScanInterval(std::chrono::milliseconds interval) { m_scanInterval = interval; }

    // --- Sending (DWTDataManagerSending.cpp) ---

    // Writes the change data on a thread of its own, which keeps this object alive. Notifications,
    // each handled on the main thread before the send goes on, with this object as sender and the
    // MSW_Searching_Value_ numbers: DWT_DataSend_Start_Message (0), DWT_DataSend_Progress_Message
    // (16, 33, 50, 66, 85, 100), DWT_DataSend_Stop_Message (0; 1 when nothing was applied for want
    // of a thread or a connection). The saved data then holds the accepted values.
    void sendDataToPrinter();
    // The same on the calling thread, until the stop; the main thread must run an event loop.
    void sendDataToPrinterAndWait() { NDM_SendDataToPrinterThread(); }
    // How the last send ended, nothing compared; written until its stop.
    const Ending &ending() const { return m_ending; }

    // --- Printers (DWTDataManagerPrinters.cpp) ---

    // The supported printers that are known now (settings/Printers.h); nothing without a link.
    static std::optional<QList<PrinterEntry>> printerList();
    // The name of the printer of `entry`, asked through `link`; " " when it cannot be read.
    static QString printerName(const std::shared_ptr<DWTCommunicationControl> &link,
                               const PrinterEntry &entry);
    // The address at which the printer was opened last, if it is on the network; otherwise empty.
    QString openedAddress() const;
    // Whether a printer answers at an address of four parts; negative when not, or without a link.
    int isCheckConnectToPrinter(const QStringList &address);

    // --- Connection, password state and login (DWTDataManagerLogin.cpp) ---

    // 2: a password is set; 3: none is set; 1: no connection or usable answer, which settles
    // neither.
    int isPassword();
    // Tries a password between connectPrinter() and disconnectPrinter(); an accepted one is kept
    // for the next send.
    WriteResult checkLoginPassword(const QString &password);
    // The link's results, 0 = connected; 1 without a link.
    int connectPrinter() { return ncc_Object ? ncc_Object->connectPrinter(0) : ReadResult::NoLink; }
    void disconnectPrinter() {
        if (ncc_Object) ncc_Object->disconnectPrinter(0);
    }
    // The status length (bytes) of the printer's model, for the link.
    void qkStatusLength(int length) {
        if (ncc_Object) ncc_Object->qkStatusLength(length);
    }

  private:
    bool NDM_InitMember(const PrinterEntry &entry);

    // Command frames: each installs one into the link; true when it could not be stored.
    static bool NDM_SetCommandSettingStart(DWTCommunicationControl &link);
    static bool NDM_SetCommandSettingEnd(DWTCommunicationControl &link);
    static bool NDM_SetCommandSettingUpDate(DWTCommunicationControl &link);
    // All three, and the command list when all could be stored; false when one could not.
    static bool installCommands(DWTCommunicationControl &link);

    // One request; an empty reply clears the read-failure flag.
    QByteArray NDM_SendCommandSettingRequest(ItemCode code);
    WriteResult NDM_ResultDataToInteger(const std::optional<QByteArray> &reply, ItemCode code);
    // Items as values: " ", 0 or nothing for one that cannot be read, or once a reply was missing.
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
    // The printer that the link points at, asked through it alone, beside the read-failure flag.
    static QString NDM_DataToPrinterName(const std::shared_ptr<DWTCommunicationControl> &link);

    // What an item holds, under its keys; without what cannot be read.
    CategoryDictionary valuesOf(const Item &item);
    // The categories, on a connected link: every item of one, in the order of the wire.
    CategoryDictionary readCategory(const QString &viewKey);
    CategoryDictionary NDM_NetworkDataFromPrinter() {
        return networkData_Dictionary = readCategory(DWT_View_Key_Network);
    }
    CategoryDictionary NDM_WirelessDataFromPrinter() {
        return wirelessData_Dictionary = readCategory(DWT_View_Key_Wireless);
    }
    CategoryDictionary NDM_InfrastructureDataFromPrinter() {
        return infrastructureData_Dictionary = readCategory(DWT_View_Key_Infrastructure);
    }
    CategoryDictionary NDM_SimpleAPDataFromPrinter() {
        return simpleAPData_Dictionary = readCategory(DWT_View_Key_SimpleAP);
    }
    CategoryDictionary NDM_EthernetDataFromPrinter() {
        return ethernetData_Dictionary = readCategory(DWT_View_Key_Ethernet);
    }
    CategoryDictionary NDM_PasswordDataFromPrinter() {
        return passwordData_Dictionary = readCategory(DWT_View_Key_Password);
    }
    CategoryDictionary NDM_FirmwareDataFromPrinter() {
        return firmwareData_Dictionary = readCategory(DWT_View_Key_Firmware);
    }
    std::optional<QList<SSIDEntry>> NDM_DataToSSIDArray(const Progress &progress);
    // The blocks of the list that a search for networks has filled.
    std::optional<QList<SSIDEntry>> networksOf(int count);

    // Notes whether a reply reports the value of an item that a send writes.
    void noteReported(ItemCode code, const QByteArray &reply);
    // Forgets the reported values of items that did not get into the record.
    void forgetMissing();

    // Items written.
    WriteResult NDM_StringToData(ItemCode code, const QString &text) {
        return sendFrame(code, ItemCodec::textFrame(code, text));
    }
    WriteResult NDM_IntegerToData(ItemCode code, int value) {
        return sendFrame(code, ItemCodec::integerFrame(code, value));
    }
    WriteResult NDM_StringAndLengthToData(ItemCode code, const QString &text) {
        return sendFrame(code, ItemCodec::textWithLengthFrame(code, text));
    }
    WriteResult NDM_IntegerAndStringAndLengthToData(ItemCode code, int value, const QString &text) {
        return sendFrame(code, ItemCodec::integerAndTextFrame(code, value, text));
    }
    WriteResult NDM_DataToData(ItemCode code, const QByteArray &bytes) {
        return sendFrame(code, ItemCodec::bytesFrame(code, bytes));
    }
    WriteResult NDM_IntegerAndArrayToData(ItemCode code, int value, const QStringList &first,
                                          const QStringList &second, const QStringList &third) {
        return sendFrame(code,
                         ItemCodec::integerAndAddressesFrame(code, value, first, second, third));
    }
    WriteResult sendFrame(ItemCode code, std::optional<QByteArray> frame);

    // The send, on its own thread.
    void NDM_SendDataToPrinterThread();
    void NDM_ProgressSetting(const QString &notification, double step, const QString &setting = {});
    bool sendLogin();
    // The saved data once the send is applied: with the accepted values, and their bytes.
    struct Accepted {
        SettingRecord record;
        QMap<ItemCode, QByteArray> reported;
    };
    Accepted sendCategories();
    bool isUsed(const Item &item) const;
    // Writes one item of the change data.
    void send(const Item &item, Accepted &accepted);
    bool isWorthSending(const Item &item) const;
    WriteResult write(const Item &item, const CategoryDictionary &change, bool changed);
    // Puts the settings of an item that was written into the ending.
    void note(const Item &item, const CategoryDictionary &change, const WriteResult &result);
    bool isLost() const { return m_ending.course == Ending::Course::Lost; }

    static bool NDM_InitMemberToPrinterList(const std::shared_ptr<DWTCommunicationControl> &link,
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
    // True while every request since the last full read got a reply.
    bool resultSettingRequest_BOOL = true;
    // Password of the last successful login; consumed by the next send.
    QString loginPassword_String;
    // The values that the printer reported or accepted, by item, as the very bytes.
    QMap<ItemCode, QByteArray> m_reported;
    QSet<ItemCode> m_asked;  // by the last reading
    Progress m_progress;     // of the reading
    Ending m_ending;
    std::chrono::milliseconds m_scanInterval = defaultScanInterval;
};
