// HeadlessBackend: child surfaces, recorded so that tests can inspect them.

#include <backends/headless/HeadlessBackend.h>
#include <backends/headless/HeadlessStateImpl.h>

namespace kroui::backend {

HeadlessBackend::ChildSurfaceRecord* HeadlessBackend::State::FindSurface(HWND surface) {
  const auto found = surfaces.find(HandleNumber(surface));
  return found == surfaces.end() ? nullptr : &found->second;
}

HWND HeadlessBackend::CreateChildSurface(HWND parent, const Rect& bounds, bool gpuAccelerated) {
  if (!mState->Find(parent)) return nullptr;
  const std::uintptr_t number = mState->nextWindow++;
  ChildSurfaceRecord& surface = mState->surfaces[number];
  surface.parent = parent;
  surface.bounds = bounds;
  surface.isGPUAccelerated = gpuAccelerated;
  return HandleOf(number);
}

void HeadlessBackend::DestroyChildSurface(HWND surface) { mState->surfaces.erase(HandleNumber(surface)); }

bool HeadlessBackend::SetChildSurfaceParent(HWND surface, HWND parent) {
  ChildSurfaceRecord* found = mState->FindSurface(surface);
  if (!found || !mState->Find(parent)) return false;
  found->parent = parent;
  return true;
}

void HeadlessBackend::SetChildSurfaceBounds(HWND surface, const Rect& bounds) {
  if (ChildSurfaceRecord* found = mState->FindSurface(surface)) found->bounds = bounds;
}

void HeadlessBackend::ShowChildSurface(HWND surface, bool show) {
  if (ChildSurfaceRecord* found = mState->FindSurface(surface)) found->isShown = show;
}

void HeadlessBackend::SetChildSurfaceOpacity(HWND surface, float opacity) {
  if (ChildSurfaceRecord* found = mState->FindSurface(surface)) found->opacity = opacity;
}

void HeadlessBackend::SetChildSurfaceClipping(HWND surface, bool clipped) {
  if (ChildSurfaceRecord* found = mState->FindSurface(surface)) found->isClipped = clipped;
}

const HeadlessBackend::ChildSurfaceRecord* HeadlessBackend::FindChildSurface(HWND surface) const {
  const auto found = mState->surfaces.find(HandleNumber(surface));
  return found == mState->surfaces.end() ? nullptr : &found->second;
}

std::vector<HWND> HeadlessBackend::GetChildSurfaces(HWND window) const {
  std::vector<HWND> surfaces;
  for (const auto& [number, surface] : mState->surfaces) {
    if (surface.parent == window) surfaces.push_back(HandleOf(number));
  }
  return surfaces;
}

} // namespace kroui::backend
