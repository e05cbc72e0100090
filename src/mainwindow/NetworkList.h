#pragma once

#include <optional>

#include "platform/ui/ModalWindow.h"
#include "platform/ui/TableView.h"
#include "settings/ItemCodec.h"
#include "settings/SettingKeys.h"
#include "ui_NetworkList.h"

// The window in which the user picks one of the networks that the printer sees. Main thread only.
class NetworkList : public ModalWindow,
                    public TableDataSource,
                    public TableDelegate,
                    private Ui::NetworkList {
    Q_OBJECT
  public:
    // Hidden; belongs to `parent`.
    explicit NetworkList(QWidget *parent);
    ~NetworkList() override;

    // Lists the networks, the strongest first, and runs until the user has picked one or left.
    // Result: the picked one, or nothing.
    std::optional<SSIDEntry> pick(const QList<SSIDEntry> &networks);

    int numberOfRowsInTableView(TableView *table) override;
    QVariant objectValueForTableColumn(TableView *table, const QString &column, int row) override;
    QIcon iconForTableColumn(TableView *table, const QString &column, int row) override;
    bool selectionShouldChangeInTableView(TableView *table) override;
    void tableViewSelectionDidChange(TableView *table) override;

  private:
    void MSW_DoubleAction(int clickedRow);
    void push_SelectSSIDWindowOK();
    void push_SelectSSIDWindowCancel();
    // Ends the run with the selected row as its outcome; does nothing when none is selected.
    void MSW_SetSelectSSID();

    QList<SSIDEntry> array_SSIDList;
};
