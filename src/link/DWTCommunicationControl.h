#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <optional>

#include "app/base/DWTBaseClass.h"
#include "zmlib/ZMLib.h"

// The link to one printer: the only object that calls the communication library. It never looks
// into a frame.
// Used from one thread at a time. A library call blocks for at most callTimeout; connectPrinter()
// makes two, every other operation one. Integer results are the library's, 0 = success, unless
// stated.
class DWTCommunicationControl : public DWTBaseClass {
    DWT_SETUP(DWTCommunicationControl, DWTBaseClass, NUS_Init, NUS_Dealloc)

  public:
    // Longest time that one library call may take, in milliseconds.
    static constexpr int callTimeout = 15000;

    // A link for `entry`, without command frames; a null pointer when there is no entry to copy.
    static std::shared_ptr<DWTCommunicationControl> communicationControl(const PrinterEntry &entry);

    // Points the link at another printer; frames, command list and status length stay.
    void communicationToPrinterList(const PrinterEntry &entry) {
        dictionary_PrinterInfomation = entry;
    }

    // Each stores a copy of a command frame. Result: true when there was NO frame to store.
    bool setStartSetting(const QByteArray &frame) { return store(settingStartCommand_Data, frame); }
    bool setEndSetting(const QByteArray &frame) { return store(settingEndCommand_Data, frame); }
    bool setUpdateSetting(const QByteArray &frame) {
        return store(settingUpdateCommand_Data, frame);
    }

    // Builds the command list from the three frames, in the order start, update, end.
    void setCommandSettingToArray() {
        settingCommands_Array = {settingStartCommand_Data, settingUpdateCommand_Data,
                                 settingEndCommand_Data};
    }

    // Stores the status length (bytes) of the model; ZMLib::defaultStatusLength until then.
    void qkStatusLength(int length) { qkStatusLength_Integer = length; }

    // The printers that the library can reach; nothing when it gives no list. Needs no connection.
    std::optional<QList<PrinterEntry>> printerList();

    // Problems of the last printerList() and of openings since. Needs no connection.
    QList<PrinterProblem> printerProblems();

    // Whether printers came or went since the last printerList(). Needs no connection.
    bool hasPrinterListChanged();

    // Whether the last printerList() had every printer that is there. Needs no connection.
    bool isPrinterListComplete();

    // The address at which a network printer was opened last; empty for any other.
    QString openedAddress() const;

    // Opens the printer's channel unless it is open, and starts a transaction. The argument is not
    // used. Result: 0; 1 for an engage status other than 0 and 1; otherwise the library's.
    int connectPrinter(int);

    // Ends the transaction and closes the channel. The argument is not used.
    int disconnectPrinter(int);

    // The reply to a request frame, at most ZMLib::replyArea bytes; nothing on failure.
    std::optional<QByteArray> selectPrinterInfomation(const QByteArray &request);

    // The printer's reply to a setting frame; otherwise as above.
    std::optional<QByteArray> sendSetting(const QByteArray &frame);

    // Whether the last exchange (the two above) found the channel closed by the printer.
    bool isClosedByPrinter() const {
        return m_exchange == ZMLib::Closed || m_exchange == ZMLib::NotOpen;
    }

    // Whether a printer answers at `address` (dotted IPv4); negative when not. For a USB printer
    // any printer counts. Needs no connection.
    int checkConnect(const QString &address);

  private:
    bool NUS_InitMember(const PrinterEntry &entry);
    // Stores a copy of `frame`; true when there is none.
    static bool store(QByteArray &field, const QByteArray &frame) {
        field = frame;
        return field.isNull();
    }
    QString deviceURI() const { return dictionary_PrinterInfomation.value(PrinterKey::DeviceURI); }
    std::optional<QByteArray> replyOf(int result, const QByteArray &reply);

    QByteArray settingStartCommand_Data;
    QByteArray settingEndCommand_Data;
    QByteArray settingUpdateCommand_Data;
    QList<QByteArray> settingCommands_Array;
    PrinterEntry dictionary_PrinterInfomation;
    int qkStatusLength_Integer = ZMLib::defaultStatusLength;
    int m_exchange = ZMLib::Success;  // the library's result of the last exchange
};
