#include "filefloors.h"

#include <pugixml.hpp>
#include <zip.h>

#include <QByteArray>
#include <QFile>
#include <QXmlStreamReader>

#include <charconv>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

const char* const kDocument = "project/new.prj";
const char* const kNumbers[] = {"PortIndex",
                                "index",
                                "FirstRcvIndex",
                                "X",
                                "Y",
                                "Width",
                                "Height",
                                "IsMultiCabinet",
                                "IsMultiFixed",
                                "MultiRcvSizeX",
                                "MultiRcvSizeY",
                                "MultiOrdered",
                                "MultiLine_0",
                                "MultiLine_1",
                                "MultiLine_2",
                                "MultiLine_3",
                                "MultiLine_4",
                                "MultiLine_5",
                                "MultiLine_6",
                                "MultiLine_7",
                                "MultiLine_8",
                                "MultiLine_9",
                                "RotateShowCenter"};
const char* const kRotation[] = {"RotateCenterX", "RotateCenterY", "RotateLeftTopX", "RotateLeftTopY",
                                 "RotateAngle",   "RotateWidth",   "RotateHeight"};

QByteArray Unpacked(const QString& path)
{
    zip_t* archive = zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, nullptr);
    zip_stat_t stat;
    zip_stat(archive, kDocument, 0, &stat);
    QByteArray bytes(static_cast<int>(stat.size), Qt::Uninitialized);
    zip_file_t* file = zip_fopen(archive, kDocument, 0);
    zip_fread(file, bytes.data(), stat.size);
    zip_fclose(file);
    zip_close(archive);
    bytes.replace('\0', ' ');
    return bytes;
}

void CopyText(char* target, size_t size, const QStringRef& text)
{
    const QByteArray bytes = text.toUtf8();
    std::memcpy(target, bytes.constData(), std::min(size - 1, static_cast<size_t>(bytes.size())));
}

/// Attributes come in the order written; each is converted by its place.
FloorTile Convert(const QXmlStreamAttributes& attributes)
{
    FloorTile tile;
    int number = 0;
    int rotation = 0;
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QStringRef name = attribute.name();
        if (name == QLatin1String("SenderId"))
            CopyText(tile.ids[0], sizeof tile.ids[0], attribute.value());
        else if (name == QLatin1String("GroupId"))
            CopyText(tile.ids[1], sizeof tile.ids[1], attribute.value());
        else if (name == QLatin1String("Type"))
            CopyText(tile.type, sizeof tile.type, attribute.value());
        else if (name.startsWith(QLatin1String("Rotate")) && name != QLatin1String("RotateShowCenter"))
            tile.rotation[rotation++ % 7] = attribute.value().toDouble();
        else
            tile.numbers[number++ % 26] = attribute.value().toInt();
    }
    return tile;
}

void AppendAttribute(std::string& out, const char* name, const char* text)
{
    out.append(" ").append(name).append("=\"").append(text).append("\"");
}

template <class Number, class... Format>
void AppendNumber(std::string& out, const char* name, Number value, Format... format)
{
    char text[32];
    *std::to_chars(text, text + 31, value, format...).ptr = '\0';
    AppendAttribute(out, name, text);
}

std::string Document(const std::vector<FloorTile>& tiles)
{
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<LedSetting>\n";
    for (size_t i = 0; i < tiles.size(); ++i) {
        out.append("                    <Tile_").append(std::to_string(i + 1));
        AppendAttribute(out, "SenderId", tiles[i].ids[0]);
        AppendAttribute(out, "Type", tiles[i].type);
        AppendAttribute(out, "GroupId", tiles[i].ids[1]);
        for (size_t n = 0; n < std::size(kNumbers); ++n)
            AppendNumber(out, kNumbers[n], tiles[i].numbers[n]);
        for (size_t n = 0; n < std::size(kRotation); ++n)
            AppendNumber(out, kRotation[n], tiles[i].rotation[n], std::chars_format::general, 6);
        out.append("/>\n");
    }
    return out.append("</LedSetting>\n");
}

} // namespace

std::vector<FloorTile> LoadFloor(const QString& path)
{
    std::vector<FloorTile> tiles;
    QXmlStreamReader reader(Unpacked(path));
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement
            && reader.name().startsWith(QLatin1String("Tile_")))
            tiles.push_back(Convert(reader.attributes()));
    return tiles;
}

double LoadTreeFloor(const QString& path)
{
    QByteArray bytes = Unpacked(path);
    pugi::xml_document tree;
    tree.load_buffer_inplace(bytes.data(), static_cast<size_t>(bytes.size()));
    double sum = 0;
    for (pugi::xml_node node = tree.first_child(); node;) {
        for (const pugi::xml_attribute& attribute : node.attributes())
            sum += attribute.as_double();
        pugi::xml_node next = node.first_child();
        for (; !next && node; node = node.parent())
            next = node.next_sibling();
        node = next;
    }
    return sum;
}

void SaveFloor(const QString& path, const std::vector<FloorTile>& tiles)
{
    const std::string document = Document(tiles);
    const QByteArray name = QFile::encodeName(path);
    zip_t* archive = zip_open(name.constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    zip_source_t* source = zip_source_buffer(archive, document.data(), document.size(), 0);
    const zip_int64_t entry = zip_file_add(archive, kDocument, source, ZIP_FL_OVERWRITE);
    zip_set_file_compression(archive, static_cast<zip_uint64_t>(entry), ZIP_CM_DEFLATE, 6);
    zip_close(archive);
    const int file = open(name.constData(), O_RDONLY);
    fsync(file);
    close(file);
}

size_t DocumentSize(const QString& path)
{
    return static_cast<size_t>(Unpacked(path).size());
}
