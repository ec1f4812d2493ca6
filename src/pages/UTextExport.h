#pragma once

#include "platform/files/Workers.h"

#include <QFutureWatcher>
#include <QWidget>
#include <functional>

class UTextButton;

/// Two buttons that take a text out of the program: into the clipboard, or into a new file that the user
/// names. GUI thread.
class UTextExport : public QWidget {
    Q_OBJECT

public:
    /// `text` tells the text when a button is pressed; `name` is the file's proposed one, without the time.
    UTextExport(std::function<QString()> text, const QString& name);

protected:
    void changeEvent(QEvent* event) override;

private:
    enum class Outcome { Saved, Exists, Failed };

    void Copy();
    void ChooseFile();
    void Save(const QString& file);
    void OnSaved();
    void Retranslate();

    std::function<QString()> m_text;
    QString m_name;
    QString m_file; // that is being written
    UTextButton* m_copy;
    UTextButton* m_save;
    Workers m_workers{1};
    QFutureWatcher<Outcome> m_saving{this};
};
