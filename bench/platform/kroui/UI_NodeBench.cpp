// The node tree's costs: a full repaint of a busy full-HD window, hit testing
// in a large tree, pointer dispatch, and the memory a node takes.

#include <kroui/drawbot/Drawbot.h>
#include <kroui/ui/EventLoop.h>
#include <kroui/ui/UI_Container.h>
#include <kroui/ui/UI_Window.h>

#include <backends/headless/HeadlessBackend.h>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace kroui::ui;
using kroui::drawbot::ColorRGBA;
using kroui::drawbot::RectF;

// What a typical small control paints: a filled rectangle and a label.
class LabelNode final : public UI_Node {
public:
  LabelNode(std::string text, ColorRGBA fill) : mText(std::move(text)), mFill(fill) {}

protected:
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override {
    const RectF box{0.f, 0.f, static_cast<float>(GetBounds().Width()), static_cast<float>(GetBounds().Height())};
    drawbot.FillRect(box, mFill);
    drawbot.DrawText(mText, kroui::drawbot::FontKey{}, ColorRGBA{0.f, 0.f, 0.f, 1.f}, box);
  }

private:
  std::string mText;
  ColorRGBA mFill;
};

std::unique_ptr<UI_Window> MakeWindow(int width, int height) {
  kroui::backend::HeadlessBackend::Install();
  kroui::backend::WindowDescription description;
  description.bounds = {0, 0, width, height};
  auto window = std::make_unique<UI_Window>(description);
  window->Show();
  return window;
}

// 1,000 labelled nodes in a 40 x 25 grid over a 1920 x 1080 window; every
// iteration invalidates the whole window, paints it and presents the pixels.
void BM_FullRepaint1080p1000Nodes(benchmark::State& state) {
  std::unique_ptr<UI_Window> window = MakeWindow(1920, 1080);
  for (int i = 0; i < 1000; ++i) {
    const int column = i % 40;
    const int row = i / 40;
    const float shade = static_cast<float>(i % 7) / 7.f;
    window->GetRoot().InsertChild(krocore::MakeIntrusive<LabelNode>("Clip " + std::to_string(i),
                                                                    ColorRGBA{shade, 0.5f, 1.f - shade, 1.f}),
                                  Rect::FromOriginAndExtent({column * 48, row * 43}, {46, 41}));
  }
  window->PaintNow(); // the first paint makes the surface and lays out the fonts
  const Rect all = window->GetRoot().GetLocalBounds();
  for (auto _ : state) {
    window->InvalidateWindowRect(all);
    window->PaintNow();
  }
  state.counters["nodes"] = 1000;
  window.reset();
  kroui::backend::SetBackend(nullptr);
}
BENCHMARK(BM_FullRepaint1080p1000Nodes)->Unit(benchmark::kMillisecond);

// A small change in the same window: one node invalidated and repainted.
void BM_RepaintOneNodeOf1000(benchmark::State& state) {
  std::unique_ptr<UI_Window> window = MakeWindow(1920, 1080);
  std::vector<UI_NodePtr> nodes;
  for (int i = 0; i < 1000; ++i) {
    nodes.push_back(krocore::MakeIntrusive<LabelNode>("Clip " + std::to_string(i), ColorRGBA{0.2f, 0.5f, 0.8f, 1.f}));
    window->GetRoot().InsertChild(nodes.back(), Rect::FromOriginAndExtent({(i % 40) * 48, (i / 40) * 43}, {46, 41}));
  }
  window->PaintNow();
  std::size_t next = 0;
  for (auto _ : state) {
    nodes[next++ % nodes.size()]->Invalidate();
    window->PaintNow();
  }
  window.reset();
  kroui::backend::SetBackend(nullptr);
}
BENCHMARK(BM_RepaintOneNodeOf1000)->Unit(benchmark::kMicrosecond);

// 10,000 nodes: 100 panels in a 10 x 10 grid, each holding 100 controls in a 10 x 10 grid.
krocore::IntrusivePtr<UI_Container> MakeTenThousand() {
  auto root = krocore::MakeIntrusive<UI_Container>();
  root->SetBounds({0, 0, 1920, 1080});
  for (int p = 0; p < 100; ++p) {
    auto panel = krocore::MakeIntrusive<UI_Container>();
    root->InsertChild(panel, Rect::FromOriginAndExtent({(p % 10) * 192, (p / 10) * 108}, {190, 106}));
    for (int c = 0; c < 100; ++c) {
      panel->InsertChild(krocore::MakeIntrusive<UI_Node>(),
                         Rect::FromOriginAndExtent({(c % 10) * 19, (c / 10) * 10}, {18, 9}));
    }
  }
  return root;
}

std::vector<Point> RandomPoints(std::size_t count) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> x(0, 1919);
  std::uniform_int_distribution<int> y(0, 1079);
  std::vector<Point> points(count);
  for (Point& point : points) point = {x(random), y(random)};
  return points;
}

void BM_HitTest10000Nodes(benchmark::State& state) {
  const auto root = MakeTenThousand();
  const std::vector<Point> points = RandomPoints(4096);
  std::size_t next = 0;
  for (auto _ : state) benchmark::DoNotOptimize(root->HitTest(points[next++ & 4095]));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_HitTest10000Nodes)->Unit(benchmark::kNanosecond);

// The worst shape for a linear scan: 10,000 siblings in one container.
void BM_HitTest10000Siblings(benchmark::State& state) {
  auto root = krocore::MakeIntrusive<UI_Container>();
  root->SetBounds({0, 0, 1920, 1080});
  for (int i = 0; i < 10000; ++i) {
    root->InsertChild(krocore::MakeIntrusive<UI_Node>(), Rect::FromOriginAndExtent({(i % 100) * 19, (i / 100) * 10}, {18, 9}));
  }
  const std::vector<Point> points = RandomPoints(4096);
  std::size_t next = 0;
  for (auto _ : state) benchmark::DoNotOptimize(root->HitTest(points[next++ & 4095]));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_HitTest10000Siblings)->Unit(benchmark::kNanosecond);

// A pointer move through a window of 10,000 nodes: hit test, enter and leave, bubbling, cursor.
void BM_PointerMoveDispatch10000Nodes(benchmark::State& state) {
  std::unique_ptr<UI_Window> window = MakeWindow(1920, 1080);
  const auto tree = MakeTenThousand();
  window->GetRoot().InsertChild(tree, {0, 0, 1920, 1080});
  const std::vector<Point> points = RandomPoints(4096);
  OS_Event move;
  move.type = OS_Event::Type::MouseMove;
  move.window = window->GetNativeWindow();
  std::size_t next = 0;
  for (auto _ : state) {
    move.position = move.screenPosition = points[next++ & 4095];
    window->DispatchEvent(move);
  }
  state.SetItemsProcessed(state.iterations());
  window.reset();
  kroui::backend::SetBackend(nullptr);
}
BENCHMARK(BM_PointerMoveDispatch10000Nodes)->Unit(benchmark::kNanosecond);

// Heap bytes in use, allocator overhead included.
std::size_t HeapInUse() { return mallinfo2().uordblks; }

// Bytes per node as allocated: the object, its allocator overhead, and its
// place in the parent's child list. `Configure` runs on each node made.
template <typename Node, typename Configure>
void MeasureNodeBytes(benchmark::State& state, Configure configure) {
  constexpr int kCount = 10000;
  double perNode = 0;
  for (auto _ : state) {
    auto parent = krocore::MakeIntrusive<UI_Container>();
    const std::size_t before = HeapInUse();
    for (int i = 0; i < kCount; ++i) {
      auto node = krocore::MakeIntrusive<Node>();
      configure(*node);
      parent->InsertChild(node, {0, 0, 10, 10});
    }
    perNode = static_cast<double>(HeapInUse() - before) / kCount;
  }
  state.counters["bytes_per_node"] = perNode;
  state.counters["sizeof"] = sizeof(Node);
}

void BM_MemoryPerUI_Node(benchmark::State& state) {
  MeasureNodeBytes<UI_Node>(state, [](UI_Node&) {});
}
BENCHMARK(BM_MemoryPerUI_Node)->Iterations(3)->Unit(benchmark::kMillisecond);

void BM_MemoryPerUI_Container(benchmark::State& state) {
  MeasureNodeBytes<UI_Container>(state, [](UI_Container&) {});
}
BENCHMARK(BM_MemoryPerUI_Container)->Iterations(3)->Unit(benchmark::kMillisecond);

// A container that was hovered, took a press and has a tooltip: its side structure exists.
void BM_MemoryPerUI_ContainerWithSideState(benchmark::State& state) {
  MeasureNodeBytes<UI_Container>(state, [](UI_Container& node) { node.SetToolTipText("Play", 200); });
}
BENCHMARK(BM_MemoryPerUI_ContainerWithSideState)->Iterations(3)->Unit(benchmark::kMillisecond);

} // namespace
