#include "WFProject.h"

#include "WFAction.h"
#include "WFFiles.h"
#include "WFServices.h"
#include "WFUtf8.h"
#include "WFVariables.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <charconv>
#include <string_view>
#include <unordered_set>
#include <utility>

std::string TWFProjectDiagnostic::ToString() const
{
    std::string text = file;
    if (line > 0)
        text += ":" + std::to_string(line) + ":" + std::to_string(column);
    return text + ": " + (isError ? "error: " : "warning: ") + message;
}

TWFProject::TWFProject() = default;
TWFProject::~TWFProject() = default;
TWFProject::TWFProject(TWFProject&&) noexcept = default;
TWFProject& TWFProject::operator=(TWFProject&&) noexcept = default;

void TWFProject::DefineVariables(TWFBuildVariables& target) const
{
    for (const auto& variable : variables) {
        if (variable.type == "integer") {
            long long value = 0;
            std::from_chars(variable.value.data(), variable.value.data() + variable.value.size(), value);
            target.Set(variable.name, TWFVariant(value));
        } else if (variable.type == "boolean") {
            bool value = false;
            parseBooleanText(variable.value, value);
            target.Set(variable.name, TWFVariant(value));
        } else {
            target.Set(variable.name, TWFVariant(variable.value));
        }
    }
}

int projectFormatVersion(const TWFProject& project)
{
    const auto goesOn = [](const auto& action) { return action->GetContinueOnFailure(); };
    const bool newer = !project.cleanupActions.empty() || project.cleanupTimeoutSeconds
        || std::any_of(project.actions.begin(), project.actions.end(), goesOn);
    return newer ? kWFProjectFormatNewest : kWFProjectFormatBase;
}

namespace {

class TPropertyMap final : public IZTXMLReader {
public:
    std::vector<std::pair<std::string, std::string>> values;
    bool ReadValue(const std::string& name, std::string& value) const override
    {
        for (const auto& [key, stored] : values) {
            if (key == name) {
                value = stored;
                return true;
            }
        }
        return false;
    }
};

class TXmlPropertyWriter final : public IZTXMLWriter {
public:
    explicit TXmlPropertyWriter(QXmlStreamWriter& xml) : m_xml(xml) {}
    void WriteValue(const std::string& name, const std::string& value) override
    {
        m_xml.writeStartElement("property");
        m_xml.writeAttribute("name", QString::fromStdString(name));
        writeTextKeepingLineBreaks(value);
        m_xml.writeEndElement();
    }

private:
    /// XML readers fold CR LF into LF, so line breaks are written as character references.
    void writeTextKeepingLineBreaks(const std::string& value)
    {
        std::size_t start = 0;
        for (std::size_t i = 0; i < value.size(); ++i) {
            if (value[i] != '\r' && value[i] != '\n')
                continue;
            if (i > start)
                m_xml.writeCharacters(QString::fromUtf8(value.data() + start, static_cast<qsizetype>(i - start)));
            m_xml.writeEntityReference(value[i] == '\r' ? "#13" : "#10");
            start = i + 1;
        }
        if (start < value.size())
            m_xml.writeCharacters(QString::fromUtf8(value.data() + start, static_cast<qsizetype>(value.size() - start)));
    }

    QXmlStreamWriter& m_xml;
};

struct TReader {
    QXmlStreamReader xml;
    std::string file;
    std::vector<TWFProjectDiagnostic>& diagnostics;
    bool failed = false;

    void error(const std::string& message)
    {
        diagnostics.push_back({file, std::max<qint64>(1, xml.lineNumber()), std::max<qint64>(1, xml.columnNumber()), message, true});
        failed = true;
    }
    void warning(const std::string& message)
    {
        diagnostics.push_back({file, xml.lineNumber(), xml.columnNumber(), message, false});
    }
    /// An attribute the element does not have (a misspelled `enabeld`) would be ignored
    /// silently and lost by a resave: it is an error at the element's place.
    void checkAttributes(std::initializer_list<const char*> known)
    {
        // Held const: iterating the temporary would copy the whole list.
        const QXmlStreamAttributes attributes = xml.attributes();
        for (const auto& attribute : attributes) {
            const QStringView name = attribute.qualifiedName();
            if (std::none_of(known.begin(), known.end(), [&](const char* k) { return name == QLatin1String(k); }))
                error("unknown attribute \"" + name.toString().toStdString() + "\" on <"
                      + xml.name().toString().toStdString() + ">");
        }
    }
    std::string attribute(const char* name) const { return xml.attributes().value(name).toString().toStdString(); }
    bool hasAttribute(const char* name) const { return xml.attributes().hasAttribute(name); }
};

void readVariables(TReader& r, TWFProject& project)
{
    // A set, not a scan of the variables so far: a project of 300 000 variables reads in
    // linear time.
    std::unordered_set<std::string> names;
    for (const auto& variable : project.variables)
        names.insert(variable.name);
    while (r.xml.readNextStartElement()) {
        if (r.xml.name() != QLatin1String("variable")) {
            r.error("unexpected element <" + r.xml.name().toString().toStdString() + "> in <variables>");
            r.xml.skipCurrentElement();
            continue;
        }
        r.checkAttributes({"name", "type", "value"});
        TWFProjectVariable variable;
        variable.name = r.attribute("name");
        if (!names.insert(variable.name).second)
            r.error("variable \"" + variable.name + "\" is defined twice");
        if (r.hasAttribute("type"))
            variable.type = r.attribute("type");
        variable.value = r.attribute("value");
        if (const std::string problem = variableNameProblem(variable.name); !problem.empty())
            r.error(problem);
        if (variable.type != "string" && variable.type != "integer" && variable.type != "boolean")
            r.error("variable \"" + variable.name + "\" has the unknown type \"" + variable.type
                    + "\" (expected string, integer or boolean)");
        if (variable.type == "boolean") {
            bool value = false;
            if (!parseBooleanText(variable.value, value))
                r.error("variable \"" + variable.name + "\": \"" + variable.value + "\" is not True or False");
        }
        if (variable.type == "integer") {
            long long value = 0;
            const auto& text = variable.value;
            const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
            if (text.empty() || ec != std::errc() || end != text.data() + text.size())
                r.error("variable \"" + variable.name + "\": \"" + text + "\" is not an integer");
        }
        project.variables.push_back(std::move(variable));
        r.xml.skipCurrentElement();
    }
}

void readAction(TReader& r, std::vector<std::unique_ptr<TCustomWFAction>>& list)
{
    const std::string type = r.attribute("type");
    const long long line = r.xml.lineNumber();
    const long long column = r.xml.columnNumber();
    r.checkAttributes({"type", "description", "enabled", "continueOnFailure"});
    std::unique_ptr<TCustomWFAction> action = WFActionServices().CreateAction(type);
    if (!action) {
        r.error("unknown action type \"" + type + "\"");
        r.xml.skipCurrentElement();
        return;
    }
    action->SetDescription(r.attribute("description"));
    if (r.hasAttribute("enabled")) {
        bool enabled = true;
        if (!parseBooleanText(r.attribute("enabled"), enabled))
            r.error("action " + type + ": enabled=\"" + r.attribute("enabled") + "\" is not True or False");
        action->SetEnabled(enabled);
    }
    if (r.hasAttribute("continueOnFailure")) {
        bool goOn = false;
        if (!parseBooleanText(r.attribute("continueOnFailure"), goOn))
            r.error("action " + type + ": continueOnFailure=\"" + r.attribute("continueOnFailure")
                    + "\" is not True or False");
        action->SetContinueOnFailure(goOn);
    }
    TPropertyMap properties;
    std::vector<std::pair<long long, long long>> places;
    while (r.xml.readNextStartElement()) {
        if (r.xml.name() != QLatin1String("property")) {
            r.error("unexpected element <" + r.xml.name().toString().toStdString() + "> in <action>");
            r.xml.skipCurrentElement();
            continue;
        }
        r.checkAttributes({"name"});
        const std::string name = r.attribute("name");
        const long long propertyLine = r.xml.lineNumber();
        const long long propertyColumn = r.xml.columnNumber();
        const std::string value = r.xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement).toStdString();
        if (r.xml.hasError())
            return;
        if (!action->FindProperty(name)) {
            r.diagnostics.push_back({r.file, propertyLine, propertyColumn,
                                     "action " + type + " does not persist a property \"" + name + "\"; ignored", false});
            continue;
        }
        if (std::string earlier; properties.ReadValue(name, earlier)) {
            r.diagnostics.push_back({r.file, propertyLine, propertyColumn,
                                     "action " + type + ": property \"" + name + "\" is given twice", true});
            r.failed = true;
            continue;
        }
        properties.values.emplace_back(name, value);
        places.emplace_back(propertyLine, propertyColumn);
    }
    for (const auto& problem : action->ReadState(properties)) {
        std::size_t n = 0;
        while (n < properties.values.size() && properties.values[n].first != problem.property)
            ++n;
        const auto place = n < places.size() ? places[n] : std::pair{line, column};
        r.diagnostics.push_back({r.file, place.first, place.second, problem.message, true});
        r.failed = true;
    }
    list.push_back(std::move(action));
}

/// The <action> elements of <actions> or <cleanup>.
void readActionList(TReader& r, std::vector<std::unique_ptr<TCustomWFAction>>& list, const char* element)
{
    while (r.xml.readNextStartElement()) {
        if (r.xml.name() == QLatin1String("action")) {
            readAction(r, list);
        } else {
            r.error("unexpected element <" + r.xml.name().toString().toStdString() + "> in <" + element + ">");
            r.xml.skipCurrentElement();
        }
    }
}

/// Reads a time-limit attribute of <wfproject>; false after reporting a bad value.
bool readTimeLimit(TReader& r, const char* name, std::int64_t& seconds)
{
    const std::string text = r.attribute(name);
    const TWFTimeLimitParse parsed = parseTimeLimitSeconds(text, seconds);
    if (parsed == TWFTimeLimitParse::TooLong)
        r.error(std::string(name) + "=\"" + text + "\" is longer than the longest time limit, "
                + std::to_string(kWFMaxTimeLimitSeconds) + " seconds (30 days)");
    else if (parsed != TWFTimeLimitParse::Ok)
        r.error(std::string(name) + "=\"" + text + "\" is not a whole number of seconds");
    return parsed == TWFTimeLimitParse::Ok;
}

/// Line and column, in characters, of the byte at offset in UTF-8 text.
std::pair<long long, long long> placeOf(const std::string& text, std::size_t offset)
{
    long long line = 1;
    long long column = 1;
    for (std::size_t i = 0; i < offset && i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte == '\n') {
            line += 1;
            column = 1;
        } else if ((byte & 0xC0) != 0x80) {
            ++column;
        }
    }
    return {line, column};
}

/// The first byte a project may not hold: one that is not UTF-8, or a NUL, which XML forbids.
/// The XML reader reports both at the wrong place (or as "Unexpected ''"), so they are found
/// first, with their line and column in characters.
bool findForbiddenByte(const std::string& text, const std::string& file, std::vector<TWFProjectDiagnostic>& diagnostics)
{
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        // Nearly every byte of a project is plain ASCII: no call, no check beyond this.
        if (byte != 0 && byte < 0x80) {
            ++i;
            continue;
        }
        const std::size_t length = utf8SequenceLength(text, i);
        std::string problem;
        if (byte == 0)
            problem = "a NUL byte (0x00), which a project cannot hold";
        else if (length == 0)
            problem = "the byte " + describeByte(byte) + " is not UTF-8 (projects are UTF-8 text)";
        if (!problem.empty()) {
            const auto [line, column] = placeOf(text, i);
            diagnostics.push_back({file, line, column, problem, true});
            return true;
        }
        i += length;
    }
    return false;
}

/// Finds the first start tag with more than kWFProjectAttributeLimit attributes, in one pass:
/// the XML reader checks each attribute against all before it, so 200 000 of them would take
/// minutes. Comments, CDATA sections and processing instructions are skipped, and so is
/// markup inside quoted attribute values. Text left malformed is the XML reader's to report.
bool findCrowdedElement(const std::string& text, const std::string& file, std::vector<TWFProjectDiagnostic>& diagnostics)
{
    const auto skipPast = [&](std::size_t from, std::string_view end) {
        const std::size_t at = text.find(end, from);
        return at == std::string::npos ? text.size() : at + end.size();
    };
    const auto startsWith = [&](std::size_t at, std::string_view prefix) {
        return text.compare(at, prefix.size(), prefix) == 0;
    };
    std::size_t i = text.find('<');
    while (i < text.size()) {
        const std::size_t open = i;
        if (startsWith(i, "<!--")) {
            i = skipPast(i + 4, "-->");
        } else if (startsWith(i, "<![CDATA[")) {
            i = skipPast(i + 9, "]]>");
        } else if (startsWith(i, "<?")) {
            i = skipPast(i + 2, "?>");
        } else {
            // A start tag, an end tag or a declaration: each "=" outside quotes is one
            // attribute (an end tag or a declaration has none outside its quoted text).
            std::size_t attributes = 0;
            for (++i; i < text.size(); ++i) {
                const char c = text[i];
                if (c == '"' || c == '\'') {
                    // A quoted value is skipped in one search; the loop steps past its quote.
                    i = std::min(text.find(c, i + 1), text.size() - 1);
                } else if (c == '=') {
                    ++attributes;
                } else if (c == '>' || c == '<') {
                    break;
                }
            }
            if (attributes > kWFProjectAttributeLimit) {
                std::size_t nameEnd = open + 1;
                while (nameEnd < text.size() && nameEnd - open <= 64
                       && std::string_view(" \t\r\n/>=").find(text[nameEnd]) == std::string_view::npos)
                    ++nameEnd;
                const std::string name = text.substr(open + 1, nameEnd - open - 1);
                const auto [line, column] = placeOf(text, open);
                diagnostics.push_back({file, line, column,
                                       "<" + name + "> has " + std::to_string(attributes)
                                           + " attributes; an element of a project has at most "
                                           + std::to_string(kWFProjectAttributeLimit),
                                       true});
                return true;
            }
            if (i < text.size() && text[i] == '>')
                ++i;
        }
        i = text.find('<', i);
    }
    return false;
}

/// Records every entity reference the document leaves unresolved (one declared only in an
/// external DTD): the XML reader would read it as empty text, in content and attributes alike.
class TUnresolvedEntities final : public QXmlStreamEntityResolver {
public:
    explicit TUnresolvedEntities(const QXmlStreamReader& xml) : m_xml(xml) {}
    QString resolveUndeclaredEntity(const QString& name) override
    {
        // The reader stands just after the reference's ";".
        const qint64 length = name.size() + 2;
        found.push_back({m_xml.lineNumber(), std::max<qint64>(1, m_xml.columnNumber() - length + 1), name.toStdString()});
        return {};
    }
    struct TPlace {
        long long line;
        long long column;
        std::string name;
    };
    std::vector<TPlace> found;

private:
    const QXmlStreamReader& m_xml;
};

/// One pass over the markup the project model has no place for. Processing instructions and
/// unresolved entity references are errors (a resave would drop the one and a run would use
/// empty text for the other). Comments and a document type declaration are read fine but
/// lost on saving: they go to `lost` when given. Malformed XML is left to the main reader.
bool findUnkeptMarkup(const std::string& text, const std::string& file, std::vector<TWFProjectDiagnostic>& diagnostics,
                      std::vector<TWFProjectDiagnostic>* lost)
{
    QXmlStreamReader xml(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())));
    TUnresolvedEntities entities(xml);
    xml.setEntityResolver(&entities);
    bool failed = false;
    const auto comment = [](const QString& body) {
        const QString line = body.simplified();
        return line.isEmpty() ? std::string("<!---->")
                              : "<!-- " + (line.size() > 40 ? line.left(40) + "..." : line).toStdString() + " -->";
    };
    while (!xml.atEnd() && !xml.hasError()) {
        const auto token = xml.readNext();
        // Places are where the markup ends: the reader gives no start.
        const long long line = xml.lineNumber();
        const long long column = std::max<qint64>(1, xml.columnNumber());
        if (token == QXmlStreamReader::ProcessingInstruction) {
            const std::string target = xml.processingInstructionTarget().toString().toStdString();
            diagnostics.push_back({file, line, column,
                                   "the processing instruction <?" + target
                                       + "?> cannot be kept in a project (saving would drop it); remove it",
                                   true});
            failed = true;
        } else if (lost && token == QXmlStreamReader::Comment) {
            lost->push_back({file, line, column,
                             "the XML comment " + comment(xml.text().toString()) + " is not kept on saving", false});
        } else if (lost && token == QXmlStreamReader::DTD) {
            lost->push_back({file, line, column, "the document type declaration is not kept on saving", false});
        }
    }
    for (const auto& entity : entities.found) {
        diagnostics.push_back({file, entity.line, entity.column,
                               "the entity reference &" + entity.name
                                   + "; is not resolved (it would read as empty text); write its text instead",
                               true});
        failed = true;
    }
    return failed;
}

} // namespace

bool ReadProjectText(const std::string& text, const std::string& fileName, TWFProject& project,
                     std::vector<TWFProjectDiagnostic>& diagnostics)
{
    project = TWFProject();
    TReader r{QXmlStreamReader(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()))), fileName,
              diagnostics};
    if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
        r.error("the file is empty (a project needs a <wfproject> element)");
        return false;
    }
    // Only a document type declaration leaves entities unresolved (without one an undeclared
    // entity is malformed XML), and a processing instruction begins "<?": a text with neither
    // past its XML declaration needs no second pass.
    const std::size_t declaration = text.find("<?xml");
    const std::size_t afterDeclaration = declaration < 4 ? text.find("?>", declaration) : 0;  // 4: a byte order mark
    const bool mayHoldUnkeptMarkup =
        text.find("<!DOCTYPE") != std::string::npos || text.find("<?", afterDeclaration) != std::string::npos;
    if (findForbiddenByte(text, fileName, diagnostics) || findCrowdedElement(text, fileName, diagnostics)
        || (mayHoldUnkeptMarkup && findUnkeptMarkup(text, fileName, diagnostics, nullptr)))
        return false;
    if (!r.xml.readNextStartElement()) {
        if (!r.xml.hasError())
            r.error("the file holds no project (no <wfproject> element)");
    } else if (r.xml.name() != QLatin1String("wfproject")) {
        r.error("the root element is <" + r.xml.name().toString().toStdString() + ">, not <wfproject>");
    } else {
        r.checkAttributes({"version", "timeout", "cleanupTimeout"});
        if (r.hasAttribute("version") && r.attribute("version") != "1" && r.attribute("version") != "2")
            r.error("project format version " + r.attribute("version") + " is not supported (this wfbuild reads "
                    + std::to_string(kWFProjectFormatBase) + " to " + std::to_string(kWFProjectFormatNewest)
                    + "); the file was written by a newer version");
        if (std::int64_t value = 0; r.hasAttribute("timeout") && readTimeLimit(r, "timeout", value))
            project.timeoutSeconds = value;
        if (std::int64_t value = 0; r.hasAttribute("cleanupTimeout") && readTimeLimit(r, "cleanupTimeout", value))
            project.cleanupTimeoutSeconds = value;
        bool sawCleanup = false;
        while (r.xml.readNextStartElement()) {
            if (r.xml.name() == QLatin1String("variables")) {
                readVariables(r, project);
            } else if (r.xml.name() == QLatin1String("actions")) {
                readActionList(r, project.actions, "actions");
            } else if (r.xml.name() == QLatin1String("cleanup") && !sawCleanup) {
                sawCleanup = true;
                readActionList(r, project.cleanupActions, "cleanup");
            } else {
                r.error("unexpected element <" + r.xml.name().toString().toStdString() + "> in <wfproject>");
                r.xml.skipCurrentElement();
            }
        }
    }
    while (!r.xml.atEnd() && !r.xml.hasError())
        r.xml.readNext();
    if (r.xml.hasError() && r.xml.error() != QXmlStreamReader::NoError)
        r.error("malformed XML: " + r.xml.errorString().toStdString());
    return !r.failed;
}

bool ReadProjectFile(const std::string& path, TWFProject& project, std::vector<TWFProjectDiagnostic>& diagnostics,
                     std::string* bytesRead)
{
    // The XML reader holds the text and its own copy of every string read; a bound on the
    // bytes read keeps a stray multi-gigabyte file (or /dev/zero) from taking the machine's memory.
    std::string bytes;
    std::string error;
    if (!readWholeFile(path, bytes, error, static_cast<std::size_t>(kWFProjectSizeLimit))) {
        diagnostics.push_back({path, 0, 0, error, true});
        return false;
    }
    const bool ok = ReadProjectText(bytes, path, project, diagnostics);
    if (bytesRead)
        *bytesRead = std::move(bytes);
    return ok;
}

std::vector<TWFProjectDiagnostic> ProjectMarkupLostOnSave(const std::string& text, const std::string& fileName)
{
    std::vector<TWFProjectDiagnostic> errors;
    std::vector<TWFProjectDiagnostic> lost;
    findUnkeptMarkup(text, fileName, errors, &lost);
    return lost;
}

std::string WriteProjectText(const TWFProject& project)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement("wfproject");
    xml.writeAttribute("version", QString::number(projectFormatVersion(project)));
    if (project.timeoutSeconds > 0)
        xml.writeAttribute("timeout", QString::number(project.timeoutSeconds));
    if (project.cleanupTimeoutSeconds)
        xml.writeAttribute("cleanupTimeout", QString::number(*project.cleanupTimeoutSeconds));
    xml.writeStartElement("variables");
    for (const auto& variable : project.variables) {
        xml.writeEmptyElement("variable");
        xml.writeAttribute("name", QString::fromStdString(variable.name));
        xml.writeAttribute("type", QString::fromStdString(variable.type));
        xml.writeAttribute("value", QString::fromStdString(variable.value));
    }
    xml.writeEndElement();
    TXmlPropertyWriter properties(xml);
    const auto writeList = [&](const char* element, const std::vector<std::unique_ptr<TCustomWFAction>>& list) {
        xml.writeStartElement(element);
        for (const auto& action : list) {
            xml.writeStartElement("action");
            xml.writeAttribute("type", QString::fromStdString(action->GetActionTypeID()));
            xml.writeAttribute("description", QString::fromStdString(action->GetDescription()));
            xml.writeAttribute("enabled", action->GetEnabled() ? "True" : "False");
            if (action->GetContinueOnFailure())
                xml.writeAttribute("continueOnFailure", "True");
            action->WriteState(properties);
            xml.writeEndElement();
        }
        xml.writeEndElement();
    };
    writeList("actions", project.actions);
    if (!project.cleanupActions.empty())
        writeList("cleanup", project.cleanupActions);
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes.toStdString();
}

bool WriteProjectFile(const std::string& path, const TWFProject& project, std::string& error)
{
    return writeFileAtomically(path, WriteProjectText(project), error);
}
