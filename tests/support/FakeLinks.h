// A controller by script behind both transports. What reaches it is kept with its time; it answers request
// lines, or fails to, as ordered.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "common/text/Text.h"
#include "platform/SerialPort.h"
#include "platform/TcpClient.h"
#include "support/FakeClock.h"

namespace morvane::test {

enum class Ending { Silent, Closes, Resets };

struct FakeReply {
  std::string bytes;
  std::size_t piece = 0;  // bytes of each arrival; 0: all at once
  double gap = 0;         // seconds before each arrival
  bool endless = false;   // again and again
  Ending ending = Ending::Silent;
};

class FakeController {
 public:
  explicit FakeController(FakeClock& time) : clock(time) {}

  FakeClock& clock;
  std::map<std::string, FakeReply> replies;  // by how the request line begins
  // Milliseconds and what happened: bytes as they came, "<open ...>", "<close>".
  std::vector<std::pair<int, std::string>> log;
  std::string wire;      // all that was sent
  std::string incoming;  // on its way to the host

  void Note(const std::string& event) { log.emplace_back(Milliseconds(), event); }
  void Take(std::string_view bytes) {
    Note(std::string(bytes));
    wire += bytes;
    for (const char c : bytes) {
      line_ += c;
      if (c == '\n') Answer(std::exchange(line_, {}));
    }
  }
  // What is due by now arrives. True when something did.
  bool Pump() {
    bool arrived = false;
    while (reply_ && clock.seconds + 1e-9 >= due_ && incoming.size() < 65536) {
      const std::size_t most = reply_->piece ? reply_->piece : reply_->bytes.size();
      incoming += reply_->bytes.substr(at_, most);
      at_ += most;
      due_ += reply_->gap;
      arrived = true;
      if (at_ < reply_->bytes.size()) continue;
      at_ = 0;
      if (reply_->endless) continue;
      ending = reply_->ending;
      reply_.reset();
    }
    return arrived;
  }
  std::string Give(std::size_t most) {
    std::string bytes = incoming.substr(0, most);
    incoming.erase(0, bytes.size());
    return bytes;
  }
  void HangUp() {
    Note("<close>");
    reply_.reset();
    incoming.clear();
    line_.clear();
  }
  Ending ending = Ending::Silent;

 private:
  int Milliseconds() const { return static_cast<int>(clock.seconds * 1000 + 0.5); }
  void Answer(const std::string& line) {
    for (auto it = replies.rbegin(); it != replies.rend(); ++it) {
      if (!common::StartsWith(line, it->first)) continue;
      reply_ = it->second;
      at_ = 0;
      due_ = clock.seconds + reply_->gap;
      return;
    }
  }

  std::string line_;
  std::optional<FakeReply> reply_;
  std::size_t at_ = 0;
  double due_ = 0;
};

class FakeSerialPort : public platform::SerialPort {
 public:
  explicit FakeSerialPort(FakeController& controller) : controller_(controller) {}
  std::string openFailure;
  std::optional<std::size_t> pulledAfter;  // bytes sent
  bool stuck = false;

  std::string Open(int number, const std::string& settings) override {
    controller_.Note("<open COM" + std::to_string(number) + ' ' + settings + '>');
    failure_ = openFailure;
    open_ = failure_.empty();
    queued_ = 0;
    return failure_;
  }
  bool IsOpen() const override { return open_; }
  void Close() override {
    if (std::exchange(open_, false)) controller_.HangUp();
  }
  void Output(std::string_view bytes) override {
    if (!open_) return;
    controller_.Take(bytes);
    if (stuck) queued_ += bytes.size();
    if (!pulledAfter || controller_.wire.size() < *pulledAfter) return;
    failure_ = "No such device";
    Close();
  }
  std::size_t OutBufferCount() const override { return queued_; }
  std::string Input(std::size_t most) override { return controller_.Give(most); }
  std::string Failure() const override { return failure_; }
  void Pump() {
    if (open_ && controller_.Pump() && onReceive) onReceive();
  }

 private:
  FakeController& controller_;
  bool open_ = false;
  std::size_t queued_ = 0;
  std::string failure_;
};

class FakeTcpClient : public platform::TcpClient {
 public:
  explicit FakeTcpClient(FakeController& controller) : controller_(controller) {}
  bool answers = true;       // else it goes on connecting
  std::string refusal;       // an error of the connection
  bool stuck = false;        // the network takes nothing
  std::size_t resetAfter{};  // bytes sent; 0: never

  void Connect(const std::string& host, int port) override {
    controller_.Note("<open " + host + ':' + std::to_string(port) + '>');
    state_ = platform::TcpState::Connecting;
  }
  platform::TcpState State() const override { return state_; }
  void Close() override {
    if (std::exchange(state_, platform::TcpState::Closed) != platform::TcpState::Closed) controller_.HangUp();
    queued_ = 0;
  }
  void SendData(std::string_view bytes) override {
    if (state_ != platform::TcpState::Connected) return;
    controller_.Take(bytes);
    queued_ += bytes.size();
    if (resetAfter > 0 && controller_.wire.size() >= resetAfter) controller_.ending = Ending::Resets;
  }
  std::string GetData(std::size_t most) override { return controller_.Give(most); }
  void Pump() {
    using platform::TcpState;
    if (state_ == TcpState::Connecting && !refusal.empty()) return Fail(refusal);
    if (state_ == TcpState::Connecting && answers) state_ = TcpState::Connected;
    if (state_ != TcpState::Connected) return;
    if (controller_.Pump() && onDataArrival) onDataArrival();
    const Ending ending = std::exchange(controller_.ending, Ending::Silent);
    if (ending == Ending::Resets) return Fail("Connection reset by peer");
    if (queued_ > 0 && !stuck) onSendProgress(std::exchange(queued_, 0), 0);
    if (ending != Ending::Closes) return;
    state_ = TcpState::Closing;
    onClosed();
  }

 private:
  void Fail(const std::string& description) {
    state_ = platform::TcpState::Error;
    onError(description);
  }

  FakeController& controller_;
  platform::TcpState state_ = platform::TcpState::Closed;
  std::size_t queued_ = 0;
};

}  // namespace morvane::test
