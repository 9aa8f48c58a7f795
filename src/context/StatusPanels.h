// What the status bar's panels say. Forms write it, the main window shows it.
#pragma once

#include <QObject>
#include <QString>
#include <array>

#include "platform/Prompts.h"

namespace morvane::context {

enum class Panel { Job, Connection, Mouse };

class StatusPanels : public QObject, public platform::Progress {
  Q_OBJECT

 public:
  void SetText(Panel panel, const QString& text);
  QString Text(Panel panel) const { return texts_[static_cast<std::size_t>(panel)]; }
  // A passing message in the first panel.
  void Tell(const QString& message) { emit Told(message); }

  void Set(std::int64_t done, std::int64_t known) override { emit Progressed(done, known); }
  void Clear() override { emit ProgressEnded(); }

 signals:
  void Changed(morvane::context::Panel panel, const QString& text);
  void Told(const QString& message);
  void Progressed(qint64 done, qint64 known);
  void ProgressEnded();

 private:
  std::array<QString, 3> texts_;
};

}  // namespace morvane::context
