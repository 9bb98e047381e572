// A temporary program folder for a test, with the game pointed at it.
#pragma once

#include <QString>
#include <QTemporaryDir>

class TestFolder {
public:
    TestFolder();   // points the program folder here
    ~TestFolder();  // points it back at the real one

    QString path() const;                       // ends in "/"
    QString file(const QString &name) const;    // path() + name
    // Writes bytes to a file in the folder (subfolders are created).
    void write(const QString &name, const QByteArray &bytes) const;

private:
    QTemporaryDir dir_;
};
