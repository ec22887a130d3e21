// storepng IN OUT: writes a PNG picture again as 8-bit RGBA without compression or filters.
//
// The program reads its textures at every start; inflating and unfiltering them took a fifth of it.
#include <cstdio>
#include <memory>
#include <png.h>
#include <vector>

namespace {

struct CloseFile {
    void operator()(FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

struct Picture {
    png_image header{};
    std::vector<png_byte> pixels;
};

bool read(const char* path, Picture& picture) {
    picture.header.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&picture.header, path))
        return false;
    picture.header.format = PNG_FORMAT_RGBA;
    picture.pixels.resize(PNG_IMAGE_SIZE(picture.header));
    return png_image_finish_read(&picture.header, nullptr, picture.pixels.data(), 0, nullptr) != 0;
}

std::vector<png_bytep> rowsOf(Picture& picture) {
    std::vector<png_bytep> rows(picture.header.height);
    for (png_uint_32 y = 0; y < picture.header.height; ++y)
        rows[y] = picture.pixels.data() + static_cast<size_t>(y) * picture.header.width * 4;
    return rows;
}

/// Nothing with a destructor lives here: the library reports errors by a long jump.
bool writeRows(FILE* file, const Picture& picture, png_bytep* rows) {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    if (!info || setjmp(png_jmpbuf(png))) {
        png_destroy_write_struct(&png, &info);
        return false;
    }
    png_init_io(png, file);
    png_set_compression_level(png, 0);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_IHDR(png, info, picture.header.width, picture.header.height, 8, PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_rows(png, info, rows);
    png_write_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
    png_destroy_write_struct(&png, &info);
    return true;
}

bool write(const char* path, Picture& picture) {
    const File file(std::fopen(path, "wb"));
    std::vector<png_bytep> rows = rowsOf(picture);
    return file && writeRows(file.get(), picture, rows.data());
}

} // namespace

int main(int argc, char** argv) {
    Picture picture;
    if (argc != 3 || !read(argv[1], picture) || !write(argv[2], picture)) {
        std::fprintf(stderr, "storepng: %s\n", argc == 3 ? "the picture can't be read or written" : "usage: IN OUT");
        return 1;
    }
    return 0;
}
