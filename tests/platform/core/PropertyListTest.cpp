#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/core/PropertyList.h"
#include "platform/core/Texts.h"

namespace {

QVariantMap read(const QByteArray &contents) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("List.plist")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
    file.close();
    const PropertyList::FolderOverride override(folder.path());
    return PropertyList::dictionary(QStringLiteral("List"), QStringLiteral("plist"));
}

QByteArray plist(const QByteArray &body) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + body + "</plist>";
}

TEST(PropertyList, ReadsEveryKindOfValue) {
    const QVariantMap map =
        read(plist("<dict><key>text</key><string>ä&amp;b</string><key>number</key>"
                   "<integer>20</integer><key>yes</key><true/><key>half</key><real>0.5</real>"
                   "<key>bytes</key><data>AAEC</data><key>list</key><array><dict><key>child</key>"
                   "<array/></dict><false/></array></dict>"));
    EXPECT_EQ(map[QStringLiteral("text")].toString(), QStringLiteral("ä&b"));
    EXPECT_EQ(map[QStringLiteral("number")].toInt(), 20);
    EXPECT_EQ(map[QStringLiteral("yes")], QVariant(true));
    EXPECT_EQ(map[QStringLiteral("half")].toDouble(), 0.5);
    EXPECT_EQ(map[QStringLiteral("bytes")].toByteArray(), QByteArray("\0\1\2", 3));
    const QVariantList list = map[QStringLiteral("list")].toList();
    ASSERT_EQ(list.size(), 2);
    EXPECT_TRUE(list[0].toMap().contains(QStringLiteral("child")));
    EXPECT_EQ(list[1], QVariant(false));
}

TEST(PropertyList, WhatCannotBeReadIsEmpty) {
    for (const QByteArray &contents :
         {QByteArray(), QByteArray("garbage"), plist("<array><string>x</string></array>"),
          plist("<dict><key>a</key>").chopped(12), QByteArray("bplist00\xff\xff\xff", 11)})
        EXPECT_TRUE(read(contents).isEmpty()) << contents.constData();
    EXPECT_TRUE(
        PropertyList::dictionary(QStringLiteral("None"), QStringLiteral("plist")).isEmpty());
}

TEST(Texts, AnUnknownKeyShowsItself) {
    EXPECT_EQ(localized(QStringLiteral("DWT_Localize_No_Such_Key")),
              QStringLiteral("DWT_Localize_No_Such_Key"));
}

}  // namespace
