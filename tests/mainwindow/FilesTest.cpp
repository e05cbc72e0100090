#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "PrinterWindow.h"

namespace {

class Files : public PrinterWindow {
  protected:
    // The dialogs begin in the current folder.
    Files() { QDir::setCurrent(folder.path()); }
    ~Files() override { QDir::setCurrent(QDir::rootPath()); }

    // In the dialog for a file: types its name and chooses it.
    DialogScript &file(const char *name) {
        return dialogs.on("fileNameEdit", [name](QWidget *dialog) {
            typeInto(controlOf<QLineEdit>(dialog, "fileNameEdit"), text(name));
            auto *const choose = controlOf<QDialogButtonBox>(dialog, "buttonBox")->buttons()[0];
            EXPECT_TRUE(QTest::qWaitFor([&] { return choose->isEnabled(); }));  // it is looked for
            QTest::mouseClick(choose, Qt::LeftButton);
        });
    }
    QString path(const char *name) const { return folder.filePath(text(name)); }
    QByteArray contents(const char *name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }
    void write(const char *name, const QByteArray &bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    const QTemporaryDir folder;
};

TEST_F(Files, SettingsAreSavedWithoutSecretsAndAppliedAfterAConfirmation) {
    open(R"({"items": {"0x3202": "office-key", "0x3104": "Old"}})");
    typeName("desk-2");
    dialogs.key("fileNameEdit", Qt::Key_Return);  // the name that is proposed
    main->saveSettings();
    const QJsonObject saved = QJsonDocument::fromJson(contents("Label-Printer.json")).object();
    EXPECT_EQ(saved[text("names")][text("bonjour")], text("desk-2")) << "what the page shows";
    EXPECT_FALSE(contents("Label-Printer.json").contains("office-key"));
    const auto refused = [](const char *why) {
        return [why](QWidget *alert) {
            EXPECT_EQ(static_cast<QMessageBox *>(alert)->informativeText().toStdString(), why);
            QTest::keyClick(alert, Qt::Key_Return);
        };
    };
    const std::pair<const char *, const char *> files[] = {
        {R"({"names": {"bonjour": "no spaces, please"}})",
         "Names: Bonjour name: 1 to 25 characters: letters A to Z and a to z, digits and hyphens, "
         "no spaces."},
        {R"({"names": {"bonjour": "label-printer"}})",
         "The printer already has all settings of the file"},
        {R"({"names": {"bonjour": "desk"}})", "Send or revert the changes on the pages first."}};
    for (const auto &[settings, why] : files) {
        write("f.json", settings);
        file("f.json").on("", refused(why));
        main->applyFile();
    }
    main->revertPage();
    file("f.json").on("view_SendConfirm", "button_SendConfirmCancel");
    main->applyFile();
    EXPECT_EQ(name(), text("label-printer"));
    EXPECT_FALSE(isEnabled("button_MainSend")) << "nothing of the file is left";
    file("f.json").confirmAndEnd([](QWidget *dialog) {
        const auto *table = controlOf<QTreeWidget>(dialog, "table_SendConfirm");
        EXPECT_EQ(table->topLevelItem(0)->child(0)->text(2), text("desk"));
    });
    main->applyFile();
    EXPECT_EQ(held(), QByteArray("desk"));
    EXPECT_EQ(name(), text("desk"));
    EXPECT_FALSE(isEnabled("button_MainSend"));
}

TEST_F(Files, TheReportIsPrintedToAFile) {
    open("{}");
    dialogs.on("printers", [this](QWidget *dialog) {
        typeInto(controlOf<QLineEdit>(dialog, "filename"), path("report.pdf"));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    main->printReport();
    EXPECT_TRUE(contents("report.pdf").startsWith("%PDF"));
    EXPECT_GT(contents("report.pdf").size(), 4000);
}

}  // namespace
