#include <krocore/utility/FileIO.h>

#include <cerrno>
#include <fstream>
#include <random>

#if !defined(_WIN32)
#include <fcntl.h>
#include <unistd.h>
#endif

namespace krocore::utility {
namespace {

std::string Describe(const std::filesystem::path& path, std::string_view what) {
  return "\"" + path.string() + "\" " + std::string(what);
}

std::filesystem::path TemporaryBeside(const std::filesystem::path& path) {
  static thread_local std::mt19937 random{std::random_device{}()};
  std::filesystem::path temporary = path;
  temporary += ".saving-" + std::to_string(random() % 1000000);
  return temporary;
}

#if !defined(_WIN32)
bool WriteAndSync(const std::filesystem::path& path, std::string_view bytes) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (fd < 0) return false;
  std::size_t written = 0;
  while (written < bytes.size()) {
    const ssize_t n = ::write(fd, bytes.data() + written, bytes.size() - written);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) break;
    written += static_cast<std::size_t>(n);
  }
  const bool ok = written == bytes.size() && ::fsync(fd) == 0;
  return ::close(fd) == 0 && ok;
}
#else
bool WriteAndSync(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.flush();
  return static_cast<bool>(out);
}
#endif

} // namespace

Result<std::string> ReadFileBytes(const std::filesystem::path& path, std::size_t maxBytes) {
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  if (error) return Result<std::string>::Failure(Describe(path, "cannot be read: " + error.message()));
  if (size > maxBytes) return Result<std::string>::Failure(Describe(path, "is too large to be read"));
  std::ifstream in(path, std::ios::binary);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  if (!in.read(bytes.data(), static_cast<std::streamsize>(size)))
    return Result<std::string>::Failure(Describe(path, "cannot be read"));
  return Result<std::string>::Success(std::move(bytes));
}

Result<void> WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes) {
  const std::filesystem::path temporary = TemporaryBeside(path);
  if (!WriteAndSync(temporary, bytes)) {
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);
    return Result<void>::Failure(Describe(path, "could not be written"));
  }
  std::error_code error;
  std::filesystem::rename(temporary, path, error);
  if (error) {
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);
    return Result<void>::Failure(Describe(path, "could not be replaced"));
  }
  return Result<void>::Success();
}

Result<std::filesystem::path> KeepBackupCopy(const std::filesystem::path& path) {
  constexpr int kMaxBackups = 100; // past that, something keeps failing: say so
  for (int number = 1; number <= kMaxBackups; ++number) {
    std::filesystem::path backup = path;
    backup += number == 1 ? std::string(".bak") : ".bak." + std::to_string(number);
    std::error_code error;
    if (std::filesystem::exists(backup, error)) continue;
    if (std::filesystem::copy_file(path, backup, std::filesystem::copy_options::none, error))
      return Result<std::filesystem::path>::Success(std::move(backup));
    return Result<std::filesystem::path>::Failure(Describe(path, "could not be copied: " + error.message()));
  }
  return Result<std::filesystem::path>::Failure(Describe(path, "has too many backup copies beside it"));
}

} // namespace krocore::utility
