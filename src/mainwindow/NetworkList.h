#pragma once

#include <functional>
#include <optional>

#include "platform/ui/Modal.h"
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

    // What a search found: no list when it failed or was cancelled. `noneKey`: text of an empty
    // list.
    struct Found {
        std::optional<QList<SSIDEntry>> networks;
        QString noneKey;
    };
    // Finds the networks while `over` waits.
    using Search = std::function<Found(QWidget *over)>;

    // Searches, lists the networks, the strongest first, and runs until the user has picked one or
    // left; F5 searches again. Result: the picked one, or nothing.
    std::optional<SSIDEntry> pick(const Search &search);

    int numberOfRowsInTableView(TableView *) override { return int(array_SSIDList.size()); }
    QVariant objectValueForTableColumn(TableView *table, const QString &column, int row) override;
    QString pictureForTableColumn(TableView *table, const QString &column, int row) override;
    QVariant sortValueForTableColumn(TableView *table, const QString &column, int row) override;
    QString rowKeyInTableView(TableView *table, int row) override;
    bool selectionShouldChangeInTableView(TableView *) override { return true; }
    void tableViewSelectionDidChange(TableView *table) override;

  private:
    // Lists what the search finds; what was listed stays without a new list.
    void searchOver(QWidget *window);
    void MSW_DoubleAction(int clickedRow) {
        if (clickedRow >= 0) MSW_SetSelectSSID();
    }
    void push_SelectSSIDWindowOK() { MSW_SetSelectSSID(); }
    void push_SelectSSIDWindowCancel() { Modal::stop(this); }
    // Ends the run with the selected row as its outcome; does nothing when none is selected.
    void MSW_SetSelectSSID();

    Search m_search;
    QList<SSIDEntry> array_SSIDList;
};
