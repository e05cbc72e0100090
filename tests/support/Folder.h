#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

// The folder of a test, and its files.
class Folder {
  public:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    // Writes a file anew; gives its path.
    QString write(const QString &name, const QByteArray &bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }
    QByteArray read(const QString &name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

  private:
    QTemporaryDir m_folder;
};
