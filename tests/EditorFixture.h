// What every test of the editor needs: a folder of its own with a documents
// folder in it, scripted boxes and dialogs, and the editor opened on a set.
#pragma once

#include "ScriptedFileDialog.h"
#include "ScriptedMsgBox.h"
#include "TestSets.h"

#include "platform/SpecialFolders.h"
#include "ui/editor/frmEditor.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>

#include <memory>

class EditorFixture {
protected:
    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<ScriptedMsgBox> boxes_;
    std::unique_ptr<ScriptedFileDialog> dialogs_;
    QPointer<frmEditor> editor_;

    QString path(const QString &name) const { return dir_->filePath(name); }

    QByteArray read(const QString &file) const { return readFile(file); }

    frmEditor *open(const QString &fileToLoad = QString())
    {
        editor_ = new frmEditor;
        editor_->setAttribute(Qt::WA_DeleteOnClose, false);
        editor_->FileToLoad = fileToLoad;
        editor_->show();
        return editor_;
    }

    // A whole set of distinct texts, "Sample", 25 s, in Sets/Quiz.QZ2.
    QString sampleSet()
    {
        QuestionSet s = distinctSet();
        s.Description = QStringLiteral("Sample");
        const QString file = path(QStringLiteral("Sets/Quiz.QZ2"));
        QDir().mkpath(path(QStringLiteral("Sets")));
        if (WriteQuestionSet(s, file))
            qFatal("cannot write the sample set");
        return file;
    }

    // For each test's init() and cleanup().
    void setUp()
    {
        dir_ = std::make_unique<QTemporaryDir>();
        SpecialFolders::overridePath(SpecialFolders::kDocuments, path(QStringLiteral("Documents")));
        QDir().mkpath(path(QStringLiteral("Documents")));
        boxes_ = std::make_unique<ScriptedMsgBox>();
        dialogs_ = std::make_unique<ScriptedFileDialog>();
    }
    void tearDown()
    {
        delete editor_.data();
        dialogs_.reset();
        boxes_.reset();
        SpecialFolders::overridePath(SpecialFolders::kDocuments, QString());
        dir_.reset();
    }
};
