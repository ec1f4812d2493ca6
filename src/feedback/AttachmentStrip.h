#pragma once

#include "feedback/AttachmentItem.h"

#include <QFrame>
#include <QTimer>
#include <optional>
#include <vector>

class QFlowLayout;
class QLabel;
class QMimeData;
class UTextButton;

/// The files that go with a report: chosen, dropped or pasted, and uploaded at once, two at a time.
class AttachmentStrip : public QFrame {
    Q_OBJECT

public:
    static constexpr int MostFiles = 9;

    explicit AttachmentStrip(const FeedbackBackend& backend, QWidget* parent = nullptr);

    /// Whether the offer is files of this machine, or a picture and no text.
    static bool CanTake(const QMimeData& offer);
    /// Adds what CanTake has approved of.
    void Take(const QMimeData& offer);
    void AddFiles(const QStringList& paths);
    void AddPicture(const QImage& picture);

    bool IsEmpty() const { return m_items.isEmpty() && m_inspections == 0; }
    /// Something is still to be uploaded, and may yet be.
    bool IsPending() const;
    /// The uploaded files, in the order of the list.
    std::vector<FileDto> Uploaded() const;
    /// Names of the files that are not uploaded and will not be.
    QStringList Failed() const;
    /// Paths of all files.
    QStringList Paths() const;

    void Clear();
    /// While locked, the list stays as it is.
    void SetLocked(bool locked);
    /// Ends all work, or leaves it behind at the deadline.
    void Stop(QDeadlineTimer deadline);

signals:
    /// A file came or went, or its upload stands otherwise.
    void Changed();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Refused {
        QString name;
        Refusal why;
    };

    void ChooseFiles();
    void Inspect(const QFuture<QVector<AttachmentFile>>& inspection);
    void Add(const AttachmentFile& file);
    Refusal Judge(const AttachmentFile& file) const;
    void Remove(AttachmentItem* item);
    void TakeOut(AttachmentItem* item);
    void ShowProgress();
    void ShowRefusals();
    void Retranslate();

    const FeedbackBackend& m_backend;
    std::optional<Workers> m_inspectors{1}; // one that hangs is left behind
    Workers m_uploaders{2};
    QVector<AttachmentItem*> m_items;
    QVector<Refused> m_refused; // of the last batch, and of those that overlapped with it
    int m_inspections = 0;
    int m_listNumber = 0; // what was looked at for a list that was cleared since is not added
    int m_pictures = 0;
    QTimer m_progressTimer{this};
    UTextButton* m_add;
    QLabel* m_note;
    QWidget* m_list;
    QFlowLayout* m_flow;
    QLabel* m_refusals;
};
