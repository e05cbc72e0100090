#pragma once

#include <QFile>
#include <QStringList>

// The rows of a CSV file that is written as the work goes on. Rows are added to what a file has.
class ResultFile {
  public:
    ResultFile() = default;
    ~ResultFile();
    ResultFile(const ResultFile &) = delete;
    ResultFile &operator=(const ResultFile &) = delete;

    // Opens the file for this run alone; an empty one gets the names of the columns, and a last row
    // without an end is ended. False, with a problem(), when it cannot be written, another run has
    // it, it is one of `inputs`, or its first line is not that of the columns.
    bool open(const QString &path, const QStringList &columns, const QStringList &inputs);
    bool isOpen() const { return m_file >= 0; }

    // Adds a row, and hands it to the system; control characters are left out, and a cell that a
    // spreadsheet would take for a formula begins with an apostrophe. False, with a problem(), when
    // that cannot be done; then nothing of the row stays.
    bool add(const QStringList &cells);

    // Why the last call failed, in words.
    QString problem() const { return m_problem; }

  private:
    bool take(const QByteArray &columns);
    bool write(const QByteArray &bytes);
    bool fail(const QString &words);

    QString m_path;
    int m_file = -1;
    QString m_problem;
};
