#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "support/TemporaryFolder.h"

namespace
{

namespace fs = std::filesystem;

/// A gnuplot that is there, and draws nothing.
class PicturesTest : public ::testing::Test
{
protected:
    PicturesTest()
    {
        fs::permissions(
            folder.write("gnuplot", "#!/bin/sh\ncase $* in *--version*) echo gnuplot ;; *) exit 3 ;; esac\n"),
            fs::perms::owner_all);
    }

    Finished plot(const std::string& file)
    {
        return finish({.arguments = {"plot", "1min", file}, .environment = {"PATH=" + folder.path()}});
    }

    TemporaryFolder folder;
};

TEST_F(PicturesTest, APictureThatIsNotDrawnLeavesTheOneBefore)
{
    folder.write("keep.svg", "a picture");
    const Finished run = plot(folder.pathOf("keep.svg"));
    EXPECT_EQ("kel-node: plot: gnuplot: found exit status 3, expected a drawing\n", run.errors);
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("a picture", folder.read("keep.svg"));
}

TEST_F(PicturesTest, APictureThatIsNotDrawnMakesNoFile)
{
    EXPECT_EQ(1, plot(folder.pathOf("new.svg")).status);
    EXPECT_FALSE(folder.has("new.svg"));
}

TEST_F(PicturesTest, AFileThatCannotBeWrittenIsToldBeforeAnyTimeGoes)
{
    const std::string absent = folder.pathOf("absent/new.svg");
    const Finished run = plot(absent);
    EXPECT_EQ("kel-node: plot: argument 2 (file): found \"" + absent +
                  "\", expected a file that can be written, ending in .svg or .png\n",
              run.errors);
    EXPECT_EQ(2, run.status);
}

TEST_F(PicturesTest, ANameThatIsTooLongIsToldAsOthersAre)
{
    const Finished run = plot(folder.pathOf(std::string(300, 'x') + ".svg"));
    EXPECT_TRUE(run.errors.ends_with("\", expected a file that can be written, ending in .svg or .png\n"))
        << run.errors;
    EXPECT_EQ(2, run.status);
}

TEST_F(PicturesTest, ALinkStaysALink)
{
    fs::create_symlink(folder.pathOf("target.svg"), folder.pathOf("link.svg"));
    EXPECT_EQ(1, plot(folder.pathOf("link.svg")).status);
    EXPECT_TRUE(fs::is_symlink(folder.pathOf("link.svg")));
    EXPECT_FALSE(folder.has("target.svg"));
}

} // namespace
