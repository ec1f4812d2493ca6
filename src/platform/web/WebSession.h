#pragma once

#include "platform/files/TaskControl.h"
#include "platform/web/RyxWebClient.h"

#include <QDeadlineTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QString>
#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

/// Why a call cannot go on; ends in the result of the web client's public calls.
struct WebException : std::runtime_error {
    WebException(WebError reason, const std::string& words, bool passing = false,
                 const std::string& message = {})
        : std::runtime_error(words), error(reason), mayPass(passing), said(message) {}

    WebError error;
    bool mayPass;     ///< the same request may well succeed a moment later
    std::string said; ///< by the service itself
};

/// A file as it was when its upload began.
class UploadSource {
public:
    /// Throws WebException when it cannot be read or is empty.
    explicit UploadSource(const std::wstring& path);

    const QString& Path() const { return m_path; }
    const QString& Name() const { return m_name; }
    qint64 Size() const { return m_size; }
    /// Whether it is another one by now.
    bool HasChanged() const;

private:
    QString m_path;
    QString m_name;
    qint64 m_size = 0;
    QDateTime m_modified;
};

using WebFields = std::vector<std::pair<std::string, std::string>>;

/// One question to a server.
struct WebRequest {
    QByteArray method = "GET";
    QUrl url;
    WebFields headers;
    QByteArray body;
    const UploadSource* file = nullptr; ///< sent as the body instead, read from the disk
    WebFields formFields;               ///< when there are any, the body is a form with `file` behind them
    bool isRepeatable = true;           ///< a second one does no harm
    qint64 resumeAt = 0;                ///< how many bytes of the answer are there already
};

/// How far an attempt has come that broke.
struct WebProgress {
    qint64 received = 0;
    QByteArray validator; ///< by which the server knows its file again; empty: it gave none
};

/// A server's answer of status 2xx.
struct WebAnswer {
    QByteArray body;
    QList<QNetworkReply::RawHeaderPair> headers;
};

/// The questions and answers of one call, in a row. Each question has the configured time, files have theirs
/// together. Made and used on one worker thread, whose events it runs while it waits.
class WebSession {
public:
    /// Takes the bytes of an answer as they come; `offset` 0 begins it, for the second time after a retry.
    /// `total` is -1 when the server does not tell. Returns why the rest is not wanted.
    using Sink = std::function<WebFailure(qint64 offset, const QByteArray& bytes, qint64 total)>;

    WebSession(const WebSettings& settings, const TaskControl& control);

    /// Asks, follows redirects, and asks once more when the failure may pass. The answer of status 2xx goes
    /// to `sink`, which a second attempt goes on with where the first one broke, if the server can; without
    /// one it is returned, and refused above 1 MiB. Throws WebException.
    WebAnswer Send(const WebRequest& request, const Sink& sink = {});

private:
    WebAnswer FollowRedirects(WebRequest request, const Sink& sink, WebProgress& progress);
    QNetworkReply* Start(const WebRequest& request);
    void Pause(std::chrono::milliseconds time);
    void ThrowIfOver() const;

    WebSettings m_settings;
    const TaskControl& m_control;
    const QDeadlineTimer m_fileDeadline;
    QDeadlineTimer m_deadline; // of the question that is asked now
    QNetworkAccessManager m_manager;
};
