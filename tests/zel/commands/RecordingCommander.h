#pragma once

#include <zel/commands/Command.h>
#include <zel/commands/Commander.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ZELTest {

/// A commander that writes every call it gets into a shared log
/// ("P:on", "A:obey 10"), answers status from a table and obeys a set of IDs.
class RecordingCommander : public ZEL::Commander {
public:
  struct Status {
    bool enabled = true;
    bool checked = false;
  };

  RecordingCommander(std::string name, const ZEL::CommanderWeakPtr& super, std::vector<std::string>& log)
      : Commander(super), mName(std::move(name)), mLog(log) {}

  static std::shared_ptr<RecordingCommander> Make(std::string name, const ZEL::CommanderWeakPtr& super,
                                                  std::vector<std::string>& log) {
    return std::make_shared<RecordingCommander>(std::move(name), super, log);
  }

  bool FindCommandStatus(int id, bool& enabled, bool& checked, ZEL::MenuMark&, ZEL::UTF8String&) override {
    mLog.push_back(mName + ":status " + std::to_string(id));
    auto it = mStatus.find(id);
    if (it == mStatus.end()) return false;
    enabled = it->second.enabled;
    checked = it->second.checked;
    return true;
  }

  bool ObeyCommand(const ZEL::Command& command) override {
    mLog.push_back(mName + ":obey " + std::to_string(command.GetID()));
    mObeyed.push_back(command);
    return mHandles.count(command.GetID()) > 0;
  }

  void Answer(int id, bool enabled) { mStatus[id] = Status{enabled, false}; }
  void Handle(int id) { mHandles[id] = true; }
  const std::vector<ZEL::Command>& Obeyed() const { return mObeyed; }

protected:
  void NowOnDuty() override { mLog.push_back(mName + ":on"); }
  void NowOffDuty() override { mLog.push_back(mName + ":off"); }

private:
  std::string mName;
  std::vector<std::string>& mLog;
  std::map<int, Status> mStatus;
  std::map<int, bool> mHandles;
  std::vector<ZEL::Command> mObeyed;
};

} // namespace ZELTest
