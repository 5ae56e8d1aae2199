#include "vexel/platform/qt/application.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QtGlobal>

#include <memory>

namespace
{

// The application object of the program: Qt allows one at a time.
class CQtEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", QByteArray("offscreen"));
        m_Application = std::make_unique<vexelbase::qt::CApplication>(m_Count, m_Arguments);
    }
    void TearDown() override { m_Application.reset(); }

private:
    int m_Count = 1;
    char m_Name[6] = "tests";
    char* m_Arguments[2] = {m_Name, nullptr};
    std::unique_ptr<vexelbase::qt::CApplication> m_Application;
};

[[maybe_unused]] testing::Environment* const s_Environment = testing::AddGlobalTestEnvironment(new CQtEnvironment);

}  // namespace
