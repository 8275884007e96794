#pragma once

#include <krocore/Export.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace krocore {

/// Base of objects that carry their own atomic reference count (UI nodes).
/// The count starts at zero; the first IntrusivePtr takes the first reference
/// and the last one to let go deletes the object.
class KROCORE_API IntrusiveRefCounted {
public:
  void AddRef() const noexcept { mRefCount.fetch_add(1, std::memory_order_relaxed); }
  void Release() const noexcept {
    if (mRefCount.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }
  std::uint32_t GetRefCount() const noexcept { return mRefCount.load(std::memory_order_relaxed); }

protected:
  IntrusiveRefCounted() noexcept = default;
  // A copy is a new object: it does not inherit the count.
  IntrusiveRefCounted(const IntrusiveRefCounted&) noexcept {}
  IntrusiveRefCounted& operator=(const IntrusiveRefCounted&) noexcept { return *this; }
  virtual ~IntrusiveRefCounted();

private:
  mutable std::atomic<std::uint32_t> mRefCount{0};
};

template <typename T>
class IntrusivePtr {
public:
  constexpr IntrusivePtr() noexcept = default;
  constexpr IntrusivePtr(std::nullptr_t) noexcept {} // NOLINT: null converts as for any pointer
  explicit IntrusivePtr(T* object) noexcept : mObject(object) { Retain(); }
  IntrusivePtr(const IntrusivePtr& other) noexcept : mObject(other.mObject) { Retain(); }
  IntrusivePtr(IntrusivePtr&& other) noexcept : mObject(std::exchange(other.mObject, nullptr)) {}
  template <typename U>
    requires std::is_convertible_v<U*, T*>
  IntrusivePtr(const IntrusivePtr<U>& other) noexcept : mObject(other.Get()) { // NOLINT: as raw pointers convert
    Retain();
  }
  ~IntrusivePtr() { Drop(); }

  IntrusivePtr& operator=(IntrusivePtr other) noexcept {
    std::swap(mObject, other.mObject);
    return *this;
  }

  T* Get() const noexcept { return mObject; }
  T* operator->() const noexcept { return mObject; }
  T& operator*() const noexcept { return *mObject; }
  explicit operator bool() const noexcept { return mObject != nullptr; }
  void Reset() noexcept { IntrusivePtr().Swap(*this); }
  void Swap(IntrusivePtr& other) noexcept { std::swap(mObject, other.mObject); }

  friend bool operator==(const IntrusivePtr& a, const IntrusivePtr& b) noexcept { return a.mObject == b.mObject; }
  friend bool operator==(const IntrusivePtr& a, std::nullptr_t) noexcept { return a.mObject == nullptr; }

private:
  void Retain() noexcept {
    if (mObject) mObject->AddRef();
  }
  void Drop() noexcept {
    if (mObject) mObject->Release();
  }

  T* mObject = nullptr;
};

template <typename T, typename... Args>
IntrusivePtr<T> MakeIntrusive(Args&&... args) {
  return IntrusivePtr<T>(new T(std::forward<Args>(args)...));
}

} // namespace krocore
