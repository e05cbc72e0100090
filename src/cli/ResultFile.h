#pragma once

#include <QFile>
#include <QStringList>

// The rows of a CSV file that is written as the work goes on. Rows are added to what a file has.
class ResultFile {
  public:
    // Opens the file; an empty one gets the names of the columns. False, with an errorString(), on
    // failure.
    bool open(const QString &path, const QStringList &columns);
    bool isOpen() const { return m_file.isOpen(); }

    // Adds a row, and hands it to the system. False when that cannot be done.
    bool add(const QStringList &cells);

    QString path() const { return m_file.fileName(); }
    QString errorString() const { return m_file.errorString(); }

  private:
    QFile m_file;
};
