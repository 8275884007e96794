#include <zel/appearance/ColorRegistry.h>

#include <zel/appearance/ColorExpression.h>
#include <zel/appearance/ColorFunctions.h>
#include <zel/appearance/ColorTableParser.h>
#include <zel/appearance/ThemeNameTable.h>

#include <krocore/debug/Assert.h>
#include <krocore/string/UTF16OutputStream.h>

#include <algorithm>
#include <ostream>

namespace ZEL {
namespace {

constexpr ColorManager::Color kRed{255, 0, 0};

// Text at or below this luminance is dark, so the UI around it is light.
constexpr float kReversingLuminance = 111.f / 255.f;

// Pops the key under evaluation however the evaluation ends.
class EvaluationFrame {
public:
  EvaluationFrame(std::vector<ColorManager::Key>& stack, const ColorManager::Key& key) : mStack(stack) {
    mStack.push_back(key);
  }
  ~EvaluationFrame() { mStack.pop_back(); }
  EvaluationFrame(const EvaluationFrame&) = delete;
  EvaluationFrame& operator=(const EvaluationFrame&) = delete;

private:
  std::vector<ColorManager::Key>& mStack;
};

} // namespace

bool ColorRegistry::RegisterTable(std::string_view text) {
  return ColorTableParser::ForEachLine(text, [this](std::string_view line) { RegisterLine(line); });
}

bool ColorRegistry::RegisterLine(std::string_view line) {
  auto parsed = ColorTableParser::ParseLine(line);
  if (!parsed) return false;
  const Key key(parsed->key);
  Register(key, ColorInfo{key, std::move(parsed->expression)});
  return true;
}

void ColorRegistry::Register(const Key& key, const ColorInfo& info) {
  mRecords.insert_or_assign(key, info);
  mReportedLoops.erase(key); // a new formula may loop anew, and deserves its own report
}

ColorRegistry::Color ColorRegistry::Get(const Key& key) {
  SyncCache();
  if (const Color* cached = mCache.Find(key)) return *cached;
  const Color color = Resolve(key);
  mCache.Store(key, color);
  return color;
}

bool ColorRegistry::IsReversing() {
  static const Key kReversibleBlack("colors.kls.reversible.black");
  const Color c = Get(kReversibleBlack);
  const float luminance = 0.299f * c.red / 255.f + 0.587f * c.green / 255.f + 0.114f * c.blue / 255.f;
  return luminance > kReversingLuminance;
}

void ColorRegistry::SyncCache() noexcept {
  const std::uint64_t generation = mGeneration.load(std::memory_order_acquire);
  if (generation == mCacheGeneration) return;
  mCache.Clear();
  mCacheGeneration = generation;
}

ColorRegistry::Color ColorRegistry::Resolve(const Key& key) {
  const auto found = mRecords.find(key);
  if (found == mRecords.end()) return ThemeNameTable::Resolve(key.View());
  const auto onLoop = std::find(mEvaluating.begin(), mEvaluating.end(), key);
  if (onLoop != mEvaluating.end()) {
    mOnLoop.insert(onLoop, mEvaluating.end()); // each answers red when its evaluation ends
    return ReportOnce(key, "Colour formulas form a loop through ");
  }
  if (mEvaluating.size() >= kMaxNesting) return ReportOnce(key, "Colour formulas nest too deeply at ");
  return EvaluateRecord(key, found->second.expression);
}

ColorRegistry::Color ColorRegistry::EvaluateRecord(const Key& key, const std::string& expression) {
  Color color;
  {
    const ColorExpression parsed(expression);
    EvaluationFrame frame(mEvaluating, key);
    color = EvaluateColorFunction(*this, parsed);
  }
  return mOnLoop.erase(key) != 0 ? kRed : color;
}

// Once for each loop, whichever of its keys it is entered by.
ColorRegistry::Color ColorRegistry::ReportOnce(const Key& key, std::string_view problem) {
  const bool known = mReportedLoops.count(key) != 0;
  mReportedLoops.insert(key);
  mReportedLoops.insert(mOnLoop.begin(), mOnLoop.end());
  if (!known) KROCORE_FAIL(std::string(problem) + key.ToString());
  return kRed;
}

void ColorRegistry::Dump(std::ostream& out) const {
  out << "<resource id> KLSCOLORTABLE\nBEGIN\n";
  for (const auto& [key, info] : mRecords)
    out << "\t\"" << key.View() << " = " << info.expression << "\" \"\\n\"\n";
  out << "\t\"\\0\"\nEND" << std::endl;
}

void ColorRegistry::List(krocore::UTF16OutputStream& out) const {
  for (const auto& [key, info] : mRecords) out << key.View() << std::string_view(info.expression) << u'\n';
}

} // namespace ZEL
