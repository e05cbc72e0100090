#include <benchmark/benchmark.h>

#include <QBoxLayout>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "app/DWTPrinterSelector.h"
#include "app/PrinterList.h"
#include "link/Binding.h"
#include "platform/core/Texts.h"
#include "platform/ui/ModalWindow.h"
#include "ui_EthernetPage.h"
#include "ui_FirmwarePage.h"
#include "ui_InfrastructurePage.h"
#include "ui_MainWindow.h"
#include "ui_NetworkList.h"
#include "ui_NetworkPage.h"
#include "ui_PasswordPage.h"
#include "ui_SendDialog.h"
#include "ui_SimpleAPPage.h"
#include "ui_WPSGuide.h"
#include "ui_WaitWindow.h"
#include "ui_WirelessPage.h"
#include "virtualprinter/VirtualPrinter.h"
#include "zmlib/CatalogueSource.h"

namespace {

// From Return in the printer list to the painted window of the first demo printer, read in full.
void openPrinter(benchmark::State &state) {
    const auto selector = make<DWTPrinterSelector>();
    selector->awakeFromNib();
    for (auto _ : state) {
        state.PauseTiming();
        selector->applicationDidFinishLaunching();
        auto *list = selector->window()->findChild<TableView *>();
        list->selectRow(0);
        state.ResumeTiming();
        QTest::keyClick(list, Qt::Key_Return);
        if (selector->window()->isVisible()) state.SkipWithError("the printer cannot be opened");
        Window *const opened = selector->mainSettingWindow()->window();
        opened->repaint();
        QApplication::processEvents();
        state.PauseTiming();
        opened->close();
        state.ResumeTiming();
    }
}
BENCHMARK(openPrinter)->Unit(benchmark::kMillisecond);

// Leaves the confirmation of a send when it was painted.
class AtConfirmation : public QObject {
  public:
    explicit AtConfirmation(QWidget *view) : m_view(view) { view->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, m_view, [this] {
                m_painted = true;
                m_view->findChild<QPushButton *>(QStringLiteral("button_SendConfirmCancel"))
                    ->click();
            });
        return false;
    }
    bool isPainted() const { return m_painted; }

  private:
    QWidget *const m_view;
    bool m_painted = false;
};

// From the Send button to the painted confirmation, of a printer that answers at once.
void confirmSend(benchmark::State &state) {
    const auto selector = make<DWTPrinterSelector>();
    selector->awakeFromNib();
    selector->applicationDidFinishLaunching();
    auto *const list = selector->window()->findChild<TableView *>();
    list->selectRow(0);
    QTest::keyClick(list, Qt::Key_Return);
    Window *const opened = selector->mainSettingWindow()->window();
    QTest::keyClicks(opened->findChild<QLineEdit *>(QStringLiteral("textField_PrintTimeOut")),
                     QStringLiteral("1"));
    auto *const send = opened->findChild<QPushButton *>(QStringLiteral("button_MainSend"));
    auto *const view = opened->findChild<QWidget *>(QStringLiteral("view_SendConfirm"));
    for (auto _ : state) {
        const AtConfirmation confirmation(view);
        send->click();
        if (!confirmation.isPainted()) state.SkipWithError("there is no confirmation");
    }
}
BENCHMARK(confirmSend)->Unit(benchmark::kMillisecond);

// The list of forty printers on USB of which six report no name: from its showing to the first
// painted row that can be opened, and to the last name.
void listWithSilentPrinters(benchmark::State &state) {
    Catalogue catalogue;
    for (int i = 0; i < 40; ++i) {
        const QString uri = QStringLiteral("virtual://%1").arg(i);
        catalogue.entries << PrinterEntry{
            {PrinterKey::DeviceURI, uri},
            {PrinterKey::ConnectionType, PrinterConnection::USB},
            {PrinterKey::ProductName, QStringLiteral("Larkfield L200")}};
        Profile profile = *profileFromJson({}).profile;
        profile.faults.items[0x1006].noReply = i < 6;
        catalogue.virtualPrinters.insert(uri, std::make_shared<VirtualPrinter>(profile));
    }
    installLibrary(catalogueLibrary(catalogue));
    double last = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const auto selector = make<DWTPrinterSelector>();
        selector->awakeFromNib();
        QElapsedTimer clock;
        clock.start();
        state.ResumeTiming();
        selector->applicationDidFinishLaunching();
        auto *const list = selector->window()->findChild<TableView *>();
        list->selectRow(0);
        selector->window()->repaint();
        if (!selector->window()
                 ->findChild<QPushButton *>(QStringLiteral("button_PrinterlistOK"))
                 ->isEnabled())
            state.SkipWithError("the first row cannot be opened");
        state.PauseTiming();
        const auto *const printers = selector->window()->findChild<PrinterList *>();
        if (!QTest::qWaitFor([&] { return !printers->isLooking(); }, 20000))
            state.SkipWithError("names are missing");
        last = double(clock.nsecsElapsed()) / 1e6;
        state.ResumeTiming();
    }
    state.counters["last_ms"] = last;
    installLibrary(nullptr);
}
BENCHMARK(listWithSilentPrinters)->Unit(benchmark::kMillisecond)->Iterations(3);

template <typename Form, typename Widget>
Form madeIn(Widget *widget) {
    Form form;
    form.setupUi(widget);
    return form;
}

template <typename Page>
void addPage(QWidget *container) {
    auto *const panel = new QWidget;
    madeIn<Page>(panel);
    auto *const page = new PanelScroller(panel);
    container->layout()->addWidget(page);
    page->setVisible(container->layout()->count() == 1);
}

void showUntilPainted(QWidget &window) {
    window.show();
    while (!window.windowHandle()->isExposed()) QApplication::processEvents();
    window.repaint();
}

// What Qt and the window system take of that: the same forms, made, shown over a list and painted,
// with no printer and none of our code behind them.
void openForms(benchmark::State &state) {
    QWidget list;
    showUntilPainted(list);
    std::unique_ptr<Window> opened;
    for (auto _ : state) {
        QWidget waiting(&list, Qt::Dialog);
        madeIn<Ui::WaitWindow>(&waiting);
        waiting.setWindowModality(Qt::WindowModal);
        showUntilPainted(waiting);
        opened = std::make_unique<Window>();
        QWidget *const pages = madeIn<Ui::MainWindow>(opened.get()).view_Main;
        new QVBoxLayout(pages);
        addPage<Ui::NetworkPage>(pages);
        addPage<Ui::WirelessPage>(pages);
        addPage<Ui::InfrastructurePage>(pages);
        addPage<Ui::SimpleAPPage>(pages);
        addPage<Ui::EthernetPage>(pages);
        addPage<Ui::FirmwarePage>(pages);
        addPage<Ui::PasswordPage>(pages);
        madeIn<Ui::SendDialog>(new ModalWindow(opened.get()));
        madeIn<Ui::NetworkList>(new ModalWindow(opened.get()));
        madeIn<Ui::WPSGuide>(new QWidget(opened.get(), Qt::Dialog));
        madeIn<Ui::WaitWindow>(new QWidget(opened.get(), Qt::Dialog));
        opened->fitToScreen();
        showUntilPainted(*opened);
        waiting.hide();
        list.hide();
        QApplication::processEvents();
        state.PauseTiming();
        opened->close();
        showUntilPainted(list);
        state.ResumeTiming();
    }
}
BENCHMARK(openForms)->Unit(benchmark::kMillisecond);

// A list of many printers, shown anew after a reload, a sorted reload and a letter in the filter.
class ManyPrinters : public TableDataSource {
  public:
    ManyPrinters() {
        table.addColumn(QStringLiteral("name"));
        table.addColumn(QStringLiteral("connection"));
        table.setHasDetails();
        table.setTableDataSource(this);
        table.show();
    }
    int numberOfRowsInTableView(TableView *) override { return 2000; }
    QVariant objectValueForTableColumn(TableView *, const QString &, int row) override {
        return QStringLiteral("Printer-%1").arg(row * 7 % 2000);
    }
    QString detailForTableColumn(TableView *, const QString &, int row) override {
        return QStringLiteral("Larkfield L200 · 10.0.%1.%2").arg(row / 250).arg(row % 250);
    }
    QString rowKeyInTableView(TableView *, int row) override {
        return QStringLiteral("tcp://printer-%1").arg(row);
    }
    TableView table;
};

void paintAnew(benchmark::State &state, const std::function<void(TableView &)> &change) {
    ManyPrinters printers;
    printers.table.selectRow(1500);
    for (auto _ : state) {
        change(printers.table);
        printers.table.repaint();
        QApplication::processEvents();
    }
}

void reloadMany(benchmark::State &state) {
    paintAnew(state, [](TableView &table) { table.reloadData(); });
}
BENCHMARK(reloadMany)->Unit(benchmark::kMillisecond);

void reloadManySorted(benchmark::State &state) {
    paintAnew(state, [](TableView &table) {
        table.sortByColumn(0, Qt::AscendingOrder);
        table.reloadData();
    });
}
BENCHMARK(reloadManySorted)->Unit(benchmark::kMillisecond);

void filterMany(benchmark::State &state) {
    paintAnew(state, [filter = QStringLiteral("12")](TableView &table) mutable {
        table.setFilter(filter = filter == u"12" ? QStringLiteral("1") : QStringLiteral("12"));
    });
}
BENCHMARK(filterMany)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char **argv) {
    qputenv("ZMLIB_PRINTERS", "demo");
    Application application(argc, argv);
    installTexts();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
