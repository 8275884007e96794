// A small mutation driver for compilers without libFuzzer. It accepts the
// libFuzzer flags the test script uses (-max_total_time=, -runs=, -seed=)
// and seed files or folders, mutates the seeds at random and feeds every
// input to LLVMFuzzerTestOneInput. A crash is left to the sanitizers; the
// input that caused it is written to crash-input so that it can be replayed.
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

using Bytes = std::vector<uint8_t>;

struct Options {
  double maxSeconds = 10.0;
  long long maxRuns = -1;
  unsigned seed = 1;
  std::vector<std::string> inputs;
};

Options ParseOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    std::string arg = argv[i];
    if (arg.rfind("-max_total_time=", 0) == 0)
      options.maxSeconds = std::stod(arg.substr(16));
    else if (arg.rfind("-runs=", 0) == 0)
      options.maxRuns = std::stoll(arg.substr(6));
    else if (arg.rfind("-seed=", 0) == 0)
      options.seed = static_cast<unsigned>(std::stoul(arg.substr(6)));
    else if (arg.rfind("-", 0) != 0)
      options.inputs.push_back(arg);
  }
  return options;
}

Bytes ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::vector<Bytes> LoadSeeds(const std::vector<std::string>& inputs) {
  std::vector<Bytes> seeds{Bytes{}};
  for (const auto& input : inputs) {
    std::filesystem::path path(input);
    if (std::filesystem::is_directory(path)) {
      for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
        if (entry.is_regular_file()) seeds.push_back(ReadFile(entry.path()));
    } else if (std::filesystem::is_regular_file(path)) {
      seeds.push_back(ReadFile(path));
    }
  }
  return seeds;
}

class Mutator {
public:
  explicit Mutator(unsigned seed) : mRandom(seed) {}

  Bytes Mutate(Bytes data, const std::vector<Bytes>& seeds) {
    const int steps = 1 + static_cast<int>(mRandom() % 4);
    for (int i = 0; i < steps; ++i) MutateOnce(data, seeds);
    if (data.size() > kMaxSize) data.resize(kMaxSize);
    return data;
  }

private:
  static constexpr size_t kMaxSize = 4096;

  size_t Below(size_t n) { return n == 0 ? 0 : mRandom() % n; }
  uint8_t AnyByte() {
    static const uint8_t kInteresting[] = {0, 1, 0x7f, 0x80, 0xff, '0', '9', ':', ';', '.', '+', '-', ' ', '<', '>', '"'};
    return mRandom() % 2 ? static_cast<uint8_t>(mRandom()) : kInteresting[Below(sizeof kInteresting)];
  }

  void MutateOnce(Bytes& data, const std::vector<Bytes>& seeds) {
    switch (mRandom() % 6) {
    case 0: data.insert(data.begin() + static_cast<long>(Below(data.size() + 1)), AnyByte()); break;
    case 1: if (!data.empty()) data.erase(data.begin() + static_cast<long>(Below(data.size()))); break;
    case 2: if (!data.empty()) data[Below(data.size())] = AnyByte(); break;
    case 3: if (!data.empty()) data[Below(data.size())] ^= static_cast<uint8_t>(1u << Below(8)); break;
    case 4: SpliceFrom(data, seeds[Below(seeds.size())]); break;
    default: DuplicateChunk(data); break;
    }
  }

  void SpliceFrom(Bytes& data, const Bytes& other) {
    if (other.empty()) return;
    const size_t from = Below(other.size());
    const size_t length = 1 + Below(other.size() - from);
    data.insert(data.begin() + static_cast<long>(Below(data.size() + 1)), other.begin() + static_cast<long>(from),
                other.begin() + static_cast<long>(from + length));
  }

  void DuplicateChunk(Bytes& data) {
    if (data.empty()) return;
    const size_t from = Below(data.size());
    const Bytes chunk(data.begin() + static_cast<long>(from),
                      data.begin() + static_cast<long>(from + 1 + Below(data.size() - from)));
    data.insert(data.begin() + static_cast<long>(Below(data.size() + 1)), chunk.begin(), chunk.end());
  }

  std::mt19937 mRandom;
};

const Bytes* sCurrentInput = nullptr;

void WriteCurrentInput() {
  if (!sCurrentInput) return;
  if (std::FILE* out = std::fopen("crash-input", "wb")) {
    std::fwrite(sCurrentInput->data(), 1, sCurrentInput->size(), out);
    std::fclose(out);
    std::fprintf(stderr, "The failing input was written to crash-input (%zu bytes)\n", sCurrentInput->size());
  }
}

extern "C" void OnFatalSignal(int signal) {
  WriteCurrentInput();
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void RunOne(const Bytes& input) {
  sCurrentInput = &input;
  LLVMFuzzerTestOneInput(input.data(), input.size());
  sCurrentInput = nullptr;
}

} // namespace

// The sanitizers call this before they end the process.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

int main(int argc, char** argv) {
  const Options options = ParseOptions(argc, argv);
  if (__sanitizer_set_death_callback) __sanitizer_set_death_callback(WriteCurrentInput);
  for (int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGILL}) std::signal(signal, OnFatalSignal);

  std::vector<Bytes> seeds = LoadSeeds(options.inputs);
  for (const auto& seed : seeds) RunOne(seed);

  Mutator mutator(options.seed);
  std::mt19937 pick(options.seed);
  const auto start = std::chrono::steady_clock::now();
  long long runs = 0;
  auto elapsed = [&] { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(); };
  while ((options.maxRuns < 0 || runs < options.maxRuns) && elapsed() < options.maxSeconds) {
    Bytes input = mutator.Mutate(seeds[pick() % seeds.size()], seeds);
    RunOne(input);
    // Inputs that grew keep the search moving, as a coverage-free stand-in.
    if (runs % 64 == 0 && seeds.size() < 256) seeds.push_back(std::move(input));
    ++runs;
  }
  std::printf("Done %lld runs in %.1f s\n", runs, elapsed());
  return 0;
}
