#include "platform/forms/Look.h"
#include "platform/forms/ModalStack.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

// The application that every test of a screen runs in; made when the tests begin, not when they are listed.
class ApplicationEnvironment final : public ::testing::Environment {
public:
    void SetUp() override
    {
        m_application = std::make_unique<Application>(m_argc, m_argv);
        Application::setQuitOnLastWindowClosed(false);
        Look::Apply(*m_application, "Noto Sans Devanagari");
    }

    void TearDown() override { m_application.reset(); }

private:
    int m_argc = 1;
    char m_name[6] = "tests";
    char* m_argv[2] = {m_name, nullptr};
    std::unique_ptr<Application> m_application;
};

const ::testing::Environment* const TheEnvironment =
    ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

}
