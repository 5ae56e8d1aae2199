#include <gtest/gtest.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// The contract suite once more on screens whose pixels are finer than Qt's, each in a process of its own: the ratio is
// settled when Qt starts. Without what the pointer does: that of the offscreen platform takes Qt's pixels and the
// screen's for the same.

namespace vexelbase::qt::test
{

namespace
{

class ContractAtRatio : public testing::TestWithParam<char const*>
{};

}  // namespace

TEST_P(ContractAtRatio, HoldsAsItDoesAtOne)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", GetParam());
    environment.insert("QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough");
    environment.remove("GTEST_TOTAL_SHARDS");
    environment.remove("GTEST_SHARD_INDEX");
    environment.remove("GTEST_OUTPUT");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {"--gtest_filter=Contract*.*-ContractInput.*:ContractWindow.MayBeDeletedInEach*"});
    ASSERT_TRUE(process.waitForFinished(120000));
    QByteArray const output = process.readAll();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0) << output.toStdString();
    EXPECT_TRUE(output.contains("[  PASSED  ] 1")) << output.toStdString();  // more than a hundred
}

INSTANTIATE_TEST_SUITE_P(Screens, ContractAtRatio, testing::Values("1.25", "1.5", "2"));

}  // namespace vexelbase::qt::test
