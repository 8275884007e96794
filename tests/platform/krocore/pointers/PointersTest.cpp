#include <krocore/pointers/EnableSharedAs.h>
#include <krocore/pointers/IntrusivePtr.h>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace {

struct Commanding {
  virtual ~Commanding() = default;
  virtual int Answer() const { return 1; }
};

struct View : krocore::utility::EnableSharedAs, Commanding {
  int Answer() const override { return 2; }
};

struct Unrelated {
  virtual ~Unrelated() = default;
};

TEST(EnableSharedAs, HandsOutPointersAsAnyBaseSharingOneCount) {
  auto view = std::make_shared<View>();
  krocore::FlexPtr<Commanding> asCommander = view->SharedAs<Commanding>();
  ASSERT_TRUE(asCommander);
  EXPECT_EQ(asCommander->Answer(), 2);
  EXPECT_EQ(view.use_count(), 2);
  EXPECT_FALSE(view->SharedAs<Unrelated>());

  krocore::FlexWeakPtr<Commanding> weak = view->WeakAs<Commanding>();
  asCommander.reset();
  view.reset();
  EXPECT_TRUE(weak.expired());
  EXPECT_EQ(weak.lock(), nullptr);
}

TEST(EnableSharedAs, AnswersNullBeforeASharedPointerOwnsTheObject) {
  View onStack;
  EXPECT_EQ(onStack.SharedAs<Commanding>(), nullptr);
  const View& constView = onStack;
  EXPECT_EQ(constView.SharedAs<Commanding>(), nullptr);
}

struct Node : krocore::IntrusiveRefCounted {
  explicit Node(std::atomic<int>& destroyed) : mDestroyed(destroyed) {}
  ~Node() override { ++mDestroyed; }
  std::atomic<int>& mDestroyed;
};

struct Leaf : Node {
  using Node::Node;
};

TEST(IntrusivePtr, LastReferenceDeletesTheObjectOnce) {
  std::atomic<int> destroyed{0};
  krocore::IntrusivePtr<Node> a = krocore::MakeIntrusive<Node>(destroyed);
  EXPECT_EQ(a->GetRefCount(), 1u);
  {
    krocore::IntrusivePtr<Node> b = a;
    krocore::IntrusivePtr<Node> c = std::move(b);
    EXPECT_EQ(a->GetRefCount(), 2u);
    EXPECT_FALSE(b);
  }
  EXPECT_EQ(a->GetRefCount(), 1u);
  a = a; // self-assignment keeps the object alive
  EXPECT_EQ(destroyed, 0);
  krocore::IntrusivePtr<Node> fromLeaf = krocore::MakeIntrusive<Leaf>(destroyed);
  a.Reset();
  fromLeaf = nullptr;
  EXPECT_EQ(destroyed, 2);
}

TEST(IntrusivePtr, CountsStayExactUnderThreads) {
  std::atomic<int> destroyed{0};
  auto shared = krocore::MakeIntrusive<Node>(destroyed);
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t)
    threads.emplace_back([shared] {
      for (int i = 0; i < 10000; ++i) krocore::IntrusivePtr<Node> copy = shared;
    });
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(shared->GetRefCount(), 1u);
  shared.Reset();
  EXPECT_EQ(destroyed, 1);
}

} // namespace
