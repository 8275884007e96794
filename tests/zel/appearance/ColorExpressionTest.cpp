#include <zel/appearance/ColorExpression.h>

#include <gtest/gtest.h>

#include <vector>

using ZEL::ColorExpression;

namespace {

struct NumberCase {
  const char* text;
  std::int32_t integer;
  std::uint32_t percent;
  unsigned channel;
};

class ColorNumbers : public testing::TestWithParam<NumberCase> {};

TEST_P(ColorNumbers, ReadAsFormulasDo) {
  EXPECT_EQ(ColorExpression::ReadInteger(GetParam().text), GetParam().integer);
  EXPECT_EQ(ColorExpression::ReadPercent(GetParam().text), GetParam().percent);
  EXPECT_EQ(ColorExpression::ReadChannel(GetParam().text), GetParam().channel);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ColorNumbers,
    testing::Values(NumberCase{"16", 16, 16, 16}, NumberCase{"0x10", 16, 16, 16},
                    NumberCase{"0X1f", 31, 31, 31}, NumberCase{"40%", 40, 40, 40},
                    NumberCase{"-1", -1, 0, 255}, NumberCase{"256", 256, 256, 0}, NumberCase{"", 0, 0, 0},
                    NumberCase{"abc", 0, 0, 0}, NumberCase{"0x", 0, 0, 0}, NumberCase{"0xg1", 0, 0, 0},
                    NumberCase{"-", 0, 0, 0}, NumberCase{"--5", 0, 0, 0}, NumberCase{"+5", 0, 0, 0},
                    NumberCase{"12ab", 12, 12, 12}, NumberCase{"2147483647", 2147483647, 2147483647u, 255},
                    NumberCase{"2147483648", 0, 2147483648u, 0}, NumberCase{"-2147483648", INT32_MIN, 0, 0},
                    NumberCase{"-2147483649", 0, 0, 0}, NumberCase{"4294967295", 0, 4294967295u, 0},
                    NumberCase{"4294967296", 0, 0, 0}, NumberCase{"0xFFFFFFFF", -1, 4294967295u, 255},
                    NumberCase{"0x100000000", 0, 0, 0}, NumberCase{"000000000000000000007", 7, 7, 7}));

struct ShapeCase {
  const char* text;
  const char* function;
  std::vector<std::string> arguments;
};

class ColorExpressionShape : public testing::TestWithParam<ShapeCase> {};

TEST_P(ColorExpressionShape, SplitsFunctionAndArguments) {
  const ColorExpression expression(GetParam().text);
  EXPECT_EQ(expression.GetFunction(), GetParam().function);
  std::vector<std::string> arguments;
  for (std::size_t i = 0; i < expression.GetArgumentCount(); ++i)
    arguments.emplace_back(expression.GetArgument(i));
  EXPECT_EQ(arguments, GetParam().arguments);
  EXPECT_EQ(expression.GetArgument(ColorExpression::kMaxArguments), "");
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ColorExpressionShape,
    testing::Values(ShapeCase{"ignored text $ RGB ( 1 ,\t2 , 3 ) trailing (4)", "RGB", {"1", "2", "3"}},
                    ShapeCase{"$MAP(colors. kls .text", "MAP", {"colors.kls.text"}},
                    ShapeCase{"$RGB(1,,3,4,5,6)", "RGB", {"1", "", "3", "4"}}, ShapeCase{"$NAME", "NAME", {}},
                    ShapeCase{"RGB(1,2,3)", "", {}}));

} // namespace
