#ifndef TESSALY_PLATFORM_CUPS_CUPS_QUEUE_H_
#define TESSALY_PLATFORM_CUPS_CUPS_QUEUE_H_

#include <QByteArray>
#include <QString>
#include <memory>
#include <stdexcept>

#include "platform/paper.h"

namespace tessaly {

// Why something cannot be printed, for the user to read.
class PrintFailure : public std::runtime_error {
public:
  explicit PrintFailure(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

// The default printer's queue in the system's printing service (CUPS). Everything that fails raises
// a PrintFailure.
class CupsQueue {
public:
  // Fails where the service does not answer or has no default printer.
  CupsQueue();
  CupsQueue(const CupsQueue&) = delete;
  CupsQueue& operator=(const CupsQueue&) = delete;
  ~CupsQueue();

  // The paper that the queue takes where nothing else is asked for.
  [[nodiscard]] Paper DefaultPaper() const;
  // Fails while the queue is stopped or rejects jobs.
  void RequireReady() const;

  // Hands a PDF over as a job of this title; returns the job's number.
  [[nodiscard]] int Submit(const QString& title, const QByteArray& pdf);
  // Whether the job has been printed; fails when it was stopped, cancelled or aborted.
  [[nodiscard]] bool IsDone(int job) const;

private:
  struct Connection;

  [[nodiscard]] QString Name() const;
  [[nodiscard]] QByteArray MediaName() const;
  std::unique_ptr<Connection> cups_;
};

}  // namespace tessaly

#endif  // TESSALY_PLATFORM_CUPS_CUPS_QUEUE_H_
