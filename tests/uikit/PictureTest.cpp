// Pictures on disk: found at the right scale, written whole or not at all.
#include <fstream>

#include <gtest/gtest.h>

#include "uikit/drawing/Canvas.hpp"
#include "uikit/drawing/Picture.hpp"

namespace {

namespace fs = std::filesystem;

class Pictures : public testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "pictures-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        folder = pattern;
    }
    void TearDown() override { fs::remove_all(folder); }

    static void save(const fs::path &file, double pixels) {
        sim::Canvas({pixels, pixels}, 1).savePng(file);
    }
    static sim::Picture loaded(const fs::path &file) {
        const auto picture = sim::Picture::load(file);
        if (!picture) {
            throw std::runtime_error(file.string() + " is no picture");
        }
        return *picture;
    }
    std::size_t fileCount() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    fs::path folder;
};

TEST_F(Pictures, PreferTheDoubleScale) {
    save(folder / "icon.png", 15);
    EXPECT_EQ(loaded(folder / "icon.png").scale(), 1);
    save(folder / "icon@2x.png", 32);
    for (const char *name : {"icon.png", "icon@2x.png"}) {
        const sim::Picture picture = loaded(folder / name);
        EXPECT_EQ(picture.scale(), 2);
        EXPECT_EQ(picture.size(), (sim::Size{16, 16}));
    }
}

TEST_F(Pictures, AreMissingQuietly) {
    std::ofstream(folder / "damaged.png") << "\x89PNG, but no more";
    for (const fs::path &file : {folder / "none.png", folder / "damaged.png", folder, fs::path()}) {
        EXPECT_FALSE(sim::Picture::load(file)) << file;
    }
}

TEST_F(Pictures, ReplaceAFileOnlyWhenComplete) {
    const fs::path file = folder / "scene.png";
    save(file, 4);
    save(file, 6);
    EXPECT_EQ(loaded(file).size(), (sim::Size{6, 6}));
    fs::create_symlink(file, folder / "link.png");
    save(folder / "link.png", 8);
    EXPECT_TRUE(fs::is_symlink(folder / "link.png"));
    EXPECT_EQ(loaded(file).size(), (sim::Size{8, 8}));
    EXPECT_EQ(fileCount(), 2U) << "no temporary file stays behind";
}

TEST_F(Pictures, SayWhyTheyCannotBeWritten) {
    fs::create_directory(folder / "taken.png");
    std::ofstream(folder / "file") << "x";
    const fs::path unwritable[] = {folder / "no" / "scene.png", folder / "taken.png",
                                   folder / "file" / "scene.png", "/dev/full"};
    for (const fs::path &file : unwritable) {
        try {
            save(file, 4);
            ADD_FAILURE() << file << " was written";
        } catch (const sim::PictureError &error) {
            EXPECT_EQ(std::string(error.what()).find(file.string() + ": cannot write"), 0U)
                << error.what();
        }
    }
    EXPECT_EQ(fileCount(), 2U);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

}  // namespace
