#include <QCoreApplication>
#include <gtest/gtest.h>

#include <memory>

namespace {

// Waiting for a port needs an application; listing the tests doesn't.
class CoreEnvironment final : public testing::Environment {
public:
    void SetUp() override { m_application = std::make_unique<QCoreApplication>(m_count, m_arguments); }
    void TearDown() override { m_application.reset(); }

private:
    char m_name[13] = "serial_tests";
    char* m_arguments[2] = {m_name, nullptr};
    int m_count = 1;
    std::unique_ptr<QCoreApplication> m_application;
};

[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new CoreEnvironment);

}
