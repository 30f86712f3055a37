
-- ---- reading frames; independent of the content of the schema

local tarn = Proto("tarn", "Tarn frames")

local fields, experts = {}, {}

local function declare(name, field)
    fields[name] = field
    return field
end

local f = {
    message = declare("message", ProtoField.string("tarn.message", "message")),
    bundle = declare("bundle", ProtoField.string("tarn.bundle", "bundle")),
    control = declare("control", ProtoField.string("tarn.control", "control")),
    options = declare("options", ProtoField.uint8("tarn.options", "options", base.HEX)),
    tracked = declare("tracked",
        ProtoField.bool("tarn.options.tracked", "answer with per-field state", 8, nil, request.tracked)),
    refused = declare("refused", ProtoField.bool("tarn.options.refused", "refused", 8, nil, request.refused)),
    number = declare("number", ProtoField.uint32("tarn.number", "number", base.DEC, nil, nil, "system error number")),
    text_length = declare("text_length", ProtoField.uint8("tarn.text_len", "length")),
    sentence = declare("sentence", ProtoField.string("tarn.sentence", "sentence")),
    payload = declare("payload", ProtoField.none("tarn.payload", "payload")),
    element = declare("element", ProtoField.none("tarn.element", "element")),
    flag_tracked = declare("flag_tracked",
        ProtoField.bool("tarn.flag.tracked", "with per-field state", 8, nil, flags.tracked)),
    flag_ra = declare("flag_ra", ProtoField.bool("tarn.flag.ra_data", "RA data follows", 8, nil, flags.ra_data)),
    skipped = declare("skipped", ProtoField.bytes("tarn.skipped", "members of a newer version")),
}

local function integer_field(prefix, size) return ProtoField[prefix .. 8 * size] end

local function field_of_part(part)
    local filter = "tarn." .. part.name
    if part.content == "identity" or part.content == "constant" and part.size > 1 then
        return ProtoField.bytes(filter, part.name, base.NONE, part.meaning)
    end
    local decimal = part.content == "number" or part.content == "signed"
    return integer_field(part.content == "signed" and "int" or "uint", part.size)(
        filter, part.name, decimal and base.DEC or base.HEX, nil, nil, part.meaning)
end

for _, parts in ipairs({ message_parts, record_parts }) do
    for _, part in ipairs(parts) do f[part.name] = declare(part.name, field_of_part(part)) end
end

local broken = ProtoExpert.new("tarn.broken", "The frame is broken", expert.group.MALFORMED, expert.severity.ERROR)
local cut = ProtoExpert.new("tarn.no_frame", "Bytes that are not a frame", expert.group.MALFORMED, expert.severity.ERROR)
tarn.experts = { broken, cut }

local function field_of(filter, member)
    local name, kind, meaning = member[1], member[2], member[3]
    local size = integer_sizes[kind]
    if size then return integer_field("uint", size)(filter, name, base.DEC, nil, nil, meaning) end
    if kind == "boolean" then return ProtoField.bool(filter, name, base.NONE, nil, nil, meaning) end
    if kind == "enumeration" then
        return ProtoField.uint32(filter, name, base.DEC, enumerations[member.of], nil, meaning)
    end
    if kind == "string" or kind == "address" then return ProtoField.string(filter, name, base.UNICODE, meaning) end
    return ProtoField.none(filter, name, meaning)
end

for record, members in pairs(records) do
    members.keys = {}
    for _, member in ipairs(members) do
        local filter = "tarn." .. record .. "." .. member[1]:gsub("[%[%]]", "")
        if member.key then members.keys[#members.keys + 1] = member[1] end
        member.field = declare(filter, field_of(filter, member))
        if not member.counts then
            member.state = declare(filter .. ".state", ProtoField.uint8(filter .. ".state", "state of " .. member[1]))
        end
        if member[2] == "array" then
            member.states = declare(filter .. ".states",
                ProtoField.bytes(filter .. ".states", "states of the elements of " .. member[1]))
        end
    end
end

local list = {}
for _, field in pairs(fields) do list[#list + 1] = field end
tarn.fields = list

-- ---- text of an address, in the same form as in the library

local function v4_text(word)
    return string.format("%d.%d.%d.%d", bit.rshift(word, 24), bit.band(bit.rshift(word, 16), 0xff),
        bit.band(bit.rshift(word, 8), 0xff), bit.band(word, 0xff))
end

local function v6_text(words)
    local part = {}
    for _, word in ipairs(words) do
        part[#part + 1] = bit.rshift(word, 16)
        part[#part + 1] = bit.band(word, 0xffff)
    end
    local from, length = 0, 1 -- the longest run of zeros, if there are two at least
    local i = 1
    while i <= 8 do
        local j = i
        while j <= 8 and part[j] == 0 do j = j + 1 end
        if j - i > length then from, length = i, j - i end
        i = math.max(i + 1, j)
    end
    local tail = from == 1 and (length == 6 or (length == 5 and part[6] == 0xffff))
    local text = ""
    i = 1
    while i <= 8 do
        if i == from then
            text = text .. "::"
            i = i + length
        else
            if text ~= "" and text:sub(-1) ~= ":" then text = text .. ":" end
            if tail and i == 7 then return text .. v4_text(words[4]) end
            text = text .. string.format("%x", part[i])
            i = i + 1
        end
    end
    return text
end

local function address_text(v)
    local words = { v["word[0]"], v["word[1]"], v["word[2]"], v["word[3]"] }
    local rest = words[2] == 0 and words[3] == 0 and words[4] == 0
    if v.af == 0 and v.prefix_len == 0 and v.scope == 0 and words[1] == 0 and rest then return "unset" end
    local text
    if (v.af == 2 and rest) or v.af == 10 then
        text = v.af == 2 and v4_text(words[1]) or v6_text(words)
        if v.scope ~= 0 then text = text .. "%" .. v.scope end
    else
        text = string.format("%d,%d,%.0f,%.0f,%.0f,%.0f", v.af, v.scope, words[1], words[2], words[3], words[4])
    end
    return text .. "/" .. v.prefix_len
end

-- ---- text from a peer, in titles and in the column

-- Control characters, characters that change the direction of text, and separators of lines, in UTF-8.
local unprintable = { "[%z\1-\31\127]", "\194[\128-\159]", "\216\156", "\226\128[\142\143\168-\174]",
    "\226\129[\166-\169]" }

local function escaped(character)
    local first, second, third = character:byte(1, 3)
    if not second then return string.format("\\x%02x", first) end
    local code = third and (first % 16 * 64 + second % 64) * 64 + third % 64 or first % 32 * 64 + second % 64
    return string.format("\\u%04x", code)
end

-- In the same notation as in the tool: such text is printed on terminals.
local function printable(text)
    for _, pattern in ipairs(unprintable) do text = text:gsub(pattern, escaped) end
    return text
end

-- ---- the elements of lists, by their keys

-- The key of an element, from the values of its members.
local function key_text(record, values)
    local words = {}
    for _, member in ipairs(values and record.keys or {}) do
        local value = values[member]
        words[#words + 1] = type(value) == "number" and string.format("%.0f", value) or value
    end
    return #words > 0 and table.concat(words, " ") or nil
end

local few, ellipsis = 3, "\226\128\166"

-- The first keys of all elements with the same name, each once.
local function add_key(group, key)
    for _, known in ipairs(group) do
        if known == key then return end
    end
    if #group < few then group[#group + 1] = key else group.more = true end
end

-- "processor 0, 1; class 1000, 1001, 1002, ...", with an ellipsis if there are more.
local function elements_text(groups)
    local words = {}
    for _, group in ipairs(groups) do
        if group.more then group[#group + 1] = ellipsis end
        if #group > 0 then words[#words + 1] = group.element .. " " .. table.concat(group, ", ") end
    end
    return table.concat(words, "; ")
end

-- ---- one frame

-- Stands in for a tree if none is shown.
local nothing = {}
function nothing.add() return nothing end
function nothing.append_text() return nothing end

local reader = {}
reader.__index = reader

-- Raised from any depth. The items found so far stay in the tree.
function reader:stop(at, path, reason) error({ at = at, path = path, reason = reason }, 0) end

function reader:require(size, path)
    if size > self.stop_at - self.at then
        self:stop(self.at, path, string.format("needs %.0f bytes, but %d are left", size, self.stop_at - self.at))
    end
end

function reader:take(tree, field, size, path)
    self:require(size, path)
    local range = self.tvb(self.at, size)
    self.at = self.at + size
    return tree:add(field, range), range
end

function reader:text(tree, field, size, path)
    self:require(size, path)
    local range = self.tvb(self.at, size)
    self.at = self.at + size
    local item, value = tree:add_packet_field(field, range, ENC_UTF_8)
    -- Wireshark 4.4 shows characters that change the direction of text as they are.
    if tree ~= nothing then item.text = printable(item.text) end
    return item, value
end

-- A subtree whose length is that of its content.
function reader:open(tree, field, label)
    local item = tree:add(field, self.tvb(self.at, 0))
    item:set_text(label)
    return item, self.at
end

function reader:close(item, from) item:set_len(self.at - from) end

function reader:record(tree, record, path)
    local head, jump_at = {}, nil
    for _, part in ipairs(record_parts) do
        if not part.flag or bit.band(head.flag, part.flag) ~= 0 then
            if part.name == "jump" then jump_at = self.at end
            local item, range = self:take(tree, f[part.name], part.size, path .. "." .. part.name)
            if part.content == "signed" then
                head[part.name] = range:int()
            elseif part.content ~= "opaque" then
                head[part.name] = range:uint()
            end
            if part.content == "flags" then
                item:add(f.flag_tracked, range)
                item:add(f.flag_ra, range)
            end
        end
    end
    local variant, jump, tracked = head.variant, head.jump, bit.band(head.flag, flags.tracked) ~= 0
    local values = {}
    if variant >= 0 then
        local count = 0
        for _, member in ipairs(records[record]) do
            local value = self:member(tree, member, count, path .. "." .. member[1], tracked)
            if member.counts then count = value end
            values[member[1]] = value
        end
    end
    local stop_at = jump_at + jump
    local base = self.base
    if stop_at < self.at then
        self:stop(jump_at, path .. ".jump", string.format("jump %.0f ends at %.0f, but the members end at %d", jump,
            stop_at - base, self.at - base))
    end
    if stop_at > self.stop_at then
        self:stop(jump_at, path .. ".jump", string.format("jump %.0f leads to %.0f, beyond the end at %d", jump,
            stop_at - base, self.stop_at - base))
    end
    -- A newer sender may have more members after those that are known.
    if stop_at > self.at then self:take(tree, f.skipped, stop_at - self.at, path) end
    return variant >= 0 and values or nil
end

function reader:member(tree, member, count, path, tracked)
    local name, kind = member[1], member[2]
    local value, range, item, _
    if integer_sizes[kind] then
        item, range = self:take(tree, member.field, integer_sizes[kind], path)
        if kind ~= "u64" then
            value = range:uint()
        elseif member.key then
            value = tostring(range:uint64())
        end
        if member.counts then return value end
    elseif kind == "boolean" then
        local _, variant = self:take(nothing, f.variant, 1, path .. ".variant")
        item, range = self:take(tree, member.field, 1, path)
        item:add(f.variant, variant)
        value = range:uint()
        if value > 1 then item:append_text(" (" .. value .. ")") end
    elseif kind == "enumeration" then
        local _, variant = self:take(nothing, f.variant, 1, path .. ".variant")
        item, range = self:take(tree, member.field, 4, path)
        item:add(f.variant, variant)
        value = range:uint()
        value = enumerations[member.of][value] or value
    elseif kind == "address" then
        -- The text depends on the parts, so they are read twice: for the text, and for the tree.
        local from = self.at
        local good, parts = pcall(self.record, self, nothing, "ip_address", path)
        self.at = from
        value = good and parts and address_text(parts) or ""
        item = tree:add(member.field, self.tvb(from, 0), value)
        self:record(item, "ip_address", path)
        self:close(item, from)
    elseif kind == "record" then
        local from
        item, from = self:open(tree, member.field, name .. ": " .. member.of)
        self:record(item, member.of, path)
        self:close(item, from)
    elseif kind == "string" then
        if count == 0 then return end
        _, value = self:text(tree, member.field, count, path)
        if member.key then value = printable(value) end
    elseif kind == "array" then
        return self:array(tree, member, count, path, tracked)
    else
        error("no reader for members of kind " .. kind)
    end
    if tracked then self:take(tree, member.state, 1, path .. ".state") end
    return value
end

function reader:array(tree, member, count, path, tracked)
    if count == 0 then return end
    local item, from = self:open(tree, member.field, string.format("%s: %.0f %s", member[1], count, member.of))
    local record = records[member.of]
    local group = self:group(record.element or member.of)
    for i = 0, count - 1 do
        local below = string.format("%s[%d]", path, i)
        local element, element_from = self:open(item, f.element, string.format("%s[%d]: %s", member[1], i, member.of))
        local key = key_text(record, self:record(element, member.of, below))
        if key then
            add_key(group, key)
            element:append_text(", " .. group.element .. " " .. key)
        end
        self:close(element, element_from)
    end
    self:close(item, from)
    if not tracked then return end
    self:take(tree, member.state, 1, path .. ".state")
    local left = self.stop_at - self.at
    if left == 0 then self:require(1, path .. "[0].state") end
    self:take(tree, member.states, math.min(count, left), path)
    if left < count then self:require(1, string.format("%s[%d].state", path, left)) end
end

-- The keys of the elements that are called so, in the order in which the frame begins them.
function reader:group(element)
    for _, group in ipairs(self.groups) do
        if group.element == element then return group end
    end
    local group = { element = element }
    self.groups[#self.groups + 1] = group
    return group
end

-- Reads up to the identity, which is not part of the header, and returns its bytes.
function reader:header(tree)
    for _, part in ipairs(message_parts) do
        local is_identity = part.content == "identity"
        local item, range = self:take(tree, f[part.name], part.size, (is_identity and "" or "header.") .. part.name)
        if is_identity then return range end
        if part.value == 0 and range:bytes():tohex():find("[^0]") then item:append_text(" (not all zero)") end
    end
end

function reader:request(tree)
    local item, range = self:take(tree, f.options, 1, "options")
    item:add(f.tracked, range)
    item:add(f.refused, range)
    local refused = bit.band(range:uint(), request.refused) ~= 0
    if refused then self:take(tree, f.number, 4, "number") end
    local name = refused and "sentence" or "bundle"
    _, range = self:take(tree, f.text_length, 1, name .. "_len")
    self:text(tree, refused and f.sentence or f.bundle, range:uint(), name)
    local text = self.tvb(self.at - range:uint(), range:uint()):string(ENC_UTF_8)
    return (refused and "refusal: " or "request: ") .. printable(text)
end

-- A readable description of the frame.
function reader:frame(tree, length)
    local range = self:header(tree)
    local luid = range:bytes():tohex(true)
    local message, control = messages[luid], controls[luid]
    self.title = "unknown message"
    if message then
        self.title = message.name
        tree:add(f.message, range, message.name):set_generated()
        local payload, from = self:open(tree, f.payload, "payload: " .. message.record)
        self:record(payload, message.record, "payload")
        self:close(payload, from)
    elseif control then
        self.title = control.bundle .. " " .. control.control
        tree:add(f.bundle, range, control.bundle):set_generated()
        tree:add(f.control, range, control.control):set_generated()
    elseif luid == request.luid then
        self.title = "request"
        self.title = self:request(tree)
    else
        self:stop(self.base + frame.luid_at, "luid", "unknown luid")
    end
    if self.base + length > self.stop_at then
        self:stop(self.at, "", string.format("truncated: the total length is %.0f, but there are %d bytes", length,
            self.stop_at - self.base))
    end
    if self.at ~= self.stop_at then
        self:stop(self.at, "", string.format("%d extra bytes after the message", self.stop_at - self.at))
    end
end

local function dissect_frame(tvb, base, length, tree)
    local available = math.min(length, tvb:captured_len() - base)
    local root = tree:add(tarn, tvb(base, available))
    local self = setmetatable({ tvb = tvb, base = base, at = base, stop_at = base + available, groups = {} }, reader)
    local good, failure = pcall(self.frame, self, root, length)
    local title, elements = self.title or "frame", elements_text(self.groups)
    if elements ~= "" then title = title .. " (" .. elements .. ")" end
    if not good then
        if type(failure) ~= "table" then error(failure, 0) end
        local where = failure.path ~= "" and failure.path .. ": " or ""
        local from = math.min(failure.at, base + available - 1)
        root:add_tvb_expert_info(broken, tvb(from, base + available - from), where .. failure.reason)
        title = title .. " [broken]"
    end
    root:set_text("Tarn frame: " .. title)
    return title
end

-- ---- frames on a stream

local function no_frame(tvb, at, pinfo, tree, reason)
    local item = tree:add(tarn, tvb(at))
    item:add_tvb_expert_info(cut, tvb(at), reason)
    pinfo.cols.info = reason
    return tvb:len()
end

local function more(pinfo, at, size)
    pinfo.desegment_offset = at
    pinfo.desegment_len = size
end

local function dissect(tvb, pinfo, tree)
    pinfo.cols.protocol = "TARN"
    local at, titles = 0, {}
    while at < tvb:len() do
        local left = tvb:captured_len() - at
        if left < 1 then break end
        if tvb(at, 1):uint() ~= frame.marker then return no_frame(tvb, at, pinfo, tree, "the marker is missing") end
        if left < frame.length_at + 4 then
            if pinfo.can_desegment > 0 then
                more(pinfo, at, DESEGMENT_ONE_MORE_SEGMENT)
                break
            end
            return no_frame(tvb, at, pinfo, tree, "truncated header")
        end
        local length = tvb(at + frame.length_at, 4):uint()
        if length < frame.least or length > frame.most then
            return no_frame(tvb, at, pinfo, tree, string.format("invalid total length %.0f", length))
        end
        if length > tvb:reported_length_remaining(at) and pinfo.can_desegment > 0 then
            more(pinfo, at, length - tvb:reported_length_remaining(at))
            break
        end
        titles[#titles + 1] = dissect_frame(tvb, at, length, tree)
        at = at + length
    end
    if #titles > 0 then
        -- A packet that ends a reassembled frame and contains others is dissected in two calls, which share the column.
        pinfo.cols.info = (pinfo.private.tarn or "") .. table.concat(titles, ", ")
        pinfo.cols.info:fence()
        pinfo.private.tarn = ", "
    end
    return tvb:len()
end

function tarn.dissector(tvb, pinfo, tree) return dissect(tvb, pinfo, tree) end

-- Calls dissect directly: when called through the protocol it could no longer request more of the stream.
local function looks_like_a_frame(tvb, pinfo, tree)
    if tvb:captured_len() < frame.least or tvb(0, 1):uint() ~= frame.marker then return false end
    local luid = tvb(frame.luid_at, frame.least - frame.luid_at):bytes():tohex(true)
    if not (messages[luid] or controls[luid] or luid == request.luid) then return false end
    pinfo.conversation = tarn
    dissect(tvb, pinfo, tree)
    return true
end

DissectorTable.get("tcp.port"):add(frame.port, tarn)
tarn:register_heuristic("tcp", looks_like_a_frame)
