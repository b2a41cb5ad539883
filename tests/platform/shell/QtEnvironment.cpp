#include <QApplication>
#include <gtest/gtest.h>

#include <memory>

namespace {

// Fonts and boxes need an application; listing the tests needs none and has no display to ask.
class QtEnvironment final : public testing::Environment {
public:
    void SetUp() override { m_application = std::make_unique<QApplication>(m_count, m_arguments); }
    void TearDown() override { m_application.reset(); }

private:
    char m_name[12] = "shell_tests";
    char* m_arguments[2] = {m_name, nullptr};
    int m_count = 1;
    std::unique_ptr<QApplication> m_application;
};

[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new QtEnvironment);

}
