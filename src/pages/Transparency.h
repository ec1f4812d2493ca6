#pragma once

#include <QPair>
#include <QVector>
#include <QWidget>

class DevicePermissions;
class QGridLayout;
class QLabel;

/// What the organisation may do here and what it may not, in sentences made of what it was granted, of the
/// switches, and of what this program can do. GUI thread.
class Transparency : public QWidget {
    Q_OBJECT

public:
    explicit Transparency(const DevicePermissions& permissions, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Whether the sentence is about what may be, and the sentence.
    using Sentence = QPair<bool, QString>;

    QVector<Sentence> Sentences() const;
    void ShowAll();
    void AddRow(const Sentence& sentence, int row);

    const DevicePermissions& m_permissions;
    QLabel* m_title;
    QGridLayout* m_rows;
    QVector<Sentence> m_shown;
};
