#include <QComboBox>

#include "PageInWindow.h"
#include "pages/DWTInfrastructureView.h"
#include "pages/DWTSimpleAPView.h"
#include "pages/DWTWirelessView.h"

namespace {

// Codes of the printer that no choice of the pages stands for.
const char *const codes = R"("0x3000": 9, "0x3101": 77, "0x3102": 9, "0x3103": 12, "0x3210": 9,
    "0x3211": 4, "0x3212": 65535)";

TEST(UnknownCodes, AreShownAsEmptyTextsAndKept) {
    const std::shared_ptr<DWTBaseView> pages[] = {
        make<DWTWirelessView>(), make<DWTInfrastructureView>(), make<DWTSimpleAPView>()};
    for (const auto &page : pages) {
        PageInWindow shown(page, codes);
        const QRegularExpression choices(text("LanMode|Authentic|Encrypt"));
        for (const auto *field : shown.window.findChildren<QLineEdit *>(choices))
            EXPECT_EQ(field->text(), QString()) << qPrintable(field->objectName());
        for (const auto *popup : shown.window.findChildren<QComboBox *>())
            EXPECT_EQ(popup->currentText().startsWith(text("Key")),
                      !popup->currentText().isEmpty());
        EXPECT_TRUE(page->itemCheckDifferentToDataManager()) << qPrintable(page->viewKey());
    }
}

}  // namespace
