// Keeps windows alive while an operation that they started is still on the stack. Waits, prompts and
// modal windows run the event loop inside an operation, so a window can be closed under it.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <vector>

namespace morvane::platform {

// Everything that runs a nested event loop, and every long operation, holds a Scope. What was asked for
// "when idle" happens from the outermost event loop, after the last Scope has gone and the operation
// has returned.
class Operations : public QObject {
  Q_OBJECT

 public:
  // `abort` is the flag that ends waits and transfers.
  explicit Operations(bool& abort, QObject* parent = nullptr);
  ~Operations() override;

  class Scope {
   public:
    // `owner` is the window, or a part of it, whose operation this is.
    explicit Scope(Operations& operations, const QObject* owner = nullptr);
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    Operations& operations_;
  };

  bool Running() const { return !owners_.empty(); }
  // Runs `action` from the event loop once nothing is in progress.
  void WhenIdle(std::function<void()> action);
  // Deletes the window once nothing is in progress. Ends the operation that the window owns.
  void DeleteWhenIdle(QObject* window);
  // Ends every operation; the abort flag then stays set until CancelQuit.
  void Quit();
  void CancelQuit();
  bool Quitting() const { return quitting_; }

 private:
  void Leave();
  void Queue();
  void RunWaiting();

  bool& abort_;
  bool quitting_ = false;
  std::vector<const QObject*> owners_;
  std::vector<QPointer<QObject>> closed_;
  std::vector<std::function<void()>> actions_;
};

}  // namespace morvane::platform
