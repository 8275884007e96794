// A shortcut set of 10,000 items (five values each) written and read the way
// the framework does it: by class ID, with keys made per item.
#include <be/store/XMLPropertyStore.h>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace {

using namespace BE;

constexpr std::uint32_t kItems = 10000;
constexpr std::uint32_t kContexts = 4;

krocore::FlexPtr<IPropertyStoreWriter> MakeWriter() {
  return krocore::classref::CreateClassInstanceRef<IPropertyStoreWriter>(kXMLFileWriterClassID);
}

krocore::FlexPtr<IPropertyStoreReader> MakeReader() {
  return krocore::classref::CreateClassInstanceRef<IPropertyStoreReader>(kXMLFileReaderClassID);
}

void WriteShortcuts(IPropertyStoreWriter& writer) {
  writer.WriteString("platform", "windows");
  for (std::uint32_t context = 0; context < kContexts; ++context) {
    writer.OpenGroup(CreateKeyWithSuffix("context", "Panel" + std::to_string(context)));
    const std::uint32_t count = kItems / kContexts;
    for (std::uint32_t index = 0; index < count; ++index) {
      writer.OpenGroup(CreateKeyWithIndex("item", index));
      writer.WriteString("commandname", "cmd.panel.action" + std::to_string(index));
      writer.WriteUnsigned("virtualkey", 0x41 + index % 26);
      writer.WriteBool("modifier.alt", index % 2 == 0);
      writer.WriteBool("modifier.shift", index % 3 == 0);
      writer.WriteBool("modifier.ctrl", index % 5 == 0);
      writer.CloseGroup();
    }
    writer.WriteUnsigned("itemcount", count);
    writer.CloseGroup();
  }
}

std::size_t ReadShortcuts(IPropertyStoreReader& reader) {
  std::size_t found = reader.ReadString("platform") ? 1 : 0;
  for (std::uint32_t context = 0; context < kContexts; ++context) {
    if (!reader.OpenGroup(CreateKeyWithSuffix("context", "Panel" + std::to_string(context)))) continue;
    const std::uint32_t count = reader.ReadUnsigned("itemcount").value_or(0);
    for (std::uint32_t index = 0; index < count && reader.OpenGroup(CreateKeyWithIndex("item", index));
         ++index) {
      found += reader.ReadString("commandname")->size() + *reader.ReadUnsigned("virtualkey") +
               *reader.ReadBool("modifier.alt") + *reader.ReadBool("modifier.shift") +
               *reader.ReadBool("modifier.ctrl");
      reader.CloseGroup();
    }
    reader.CloseGroup();
  }
  return found;
}

std::string ShortcutBytes() {
  auto writer = MakeWriter();
  WriteShortcuts(*writer);
  return writer->ToBytes();
}

std::filesystem::path BenchPath() {
  return std::filesystem::temp_directory_path() / ("zel-be-bench-" + std::to_string(::getpid()) + ".kys");
}

void BM_WriteToBytes(benchmark::State& state) {
  for (auto _ : state) {
    auto writer = MakeWriter();
    WriteShortcuts(*writer);
    benchmark::DoNotOptimize(writer->ToBytes());
  }
  state.SetItemsProcessed(state.iterations() * kItems);
}
BENCHMARK(BM_WriteToBytes)->Unit(benchmark::kMillisecond);

// Includes flushing the file to the disk, which is most of the time on a slow disk.
void BM_WriteAndSave(benchmark::State& state) {
  const auto path = BenchPath();
  for (auto _ : state) {
    auto writer = MakeWriter();
    WriteShortcuts(*writer);
    if (!writer->Save(path)) state.SkipWithError("saving failed");
  }
  std::filesystem::remove(path);
  state.SetItemsProcessed(state.iterations() * kItems);
}
BENCHMARK(BM_WriteAndSave)->Unit(benchmark::kMillisecond);

void BM_ReadBytes(benchmark::State& state) {
  const std::string bytes = ShortcutBytes();
  state.counters["bytes"] = static_cast<double>(bytes.size());
  for (auto _ : state) {
    auto reader = MakeReader();
    if (!reader->ReadBytes(bytes)) state.SkipWithError("reading failed");
    benchmark::DoNotOptimize(ReadShortcuts(*reader));
  }
  state.SetItemsProcessed(state.iterations() * kItems);
}
BENCHMARK(BM_ReadBytes)->Unit(benchmark::kMillisecond);

void BM_ReadFile(benchmark::State& state) {
  const auto path = BenchPath();
  auto writer = MakeWriter();
  WriteShortcuts(*writer);
  if (!writer->Save(path)) state.SkipWithError("saving failed");
  for (auto _ : state) {
    auto reader = MakeReader();
    if (!reader->ReadFile(path)) state.SkipWithError("reading failed");
    benchmark::DoNotOptimize(ReadShortcuts(*reader));
  }
  std::filesystem::remove(path);
  state.SetItemsProcessed(state.iterations() * kItems);
}
BENCHMARK(BM_ReadFile)->Unit(benchmark::kMillisecond);

} // namespace
