#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/core/PropertyList.h"

namespace {

using namespace Qt::StringLiterals;

TEST(PropertyList, ValuesKeepTheirKindsAndWhatCannotBeReadIsEmpty) {
    const QByteArray begin = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">";
    const struct {
        QByteArray contents;
        QVariantMap expected;
    } cases[] = {
        {begin + "<dict><key>a</key><string>\xc3\xa4&amp;b</string><key>n</key><integer>20"
                 "</integer><key>l</key><array><dict/><false/><true/></array></dict></plist>",
         {{u"a"_s, u"ä&b"_s}, {u"n"_s, 20}, {u"l"_s, QVariantList{QVariantMap(), false, true}}}},
        {begin + "<array><string>x</string></array></plist>", {}},
        {begin + "<dict><key>a</key>", {}},
        {"garbage", {}},
        {"", {}},
        {QByteArray("bplist00\xff\xff\xff"), {}}};
    const QTemporaryDir folder;
    const PropertyList::FolderOverride override(folder.path());
    for (const auto &c : cases) {
        QFile file(folder.filePath(u"List.plist"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(c.contents);
        file.close();
        EXPECT_EQ(PropertyList::dictionary(u"List"_s, u"plist"_s), c.expected)
            << c.contents.constData();
    }
    EXPECT_TRUE(PropertyList::dictionary(u"None"_s, u"plist"_s).isEmpty());
}

}  // namespace
