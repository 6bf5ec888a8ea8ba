-- Steel by section, in Lua: LuaJIT reads the header of the C interface and calls the library.
-- usage: luajit read_model.lua LIBRARY FILE HEADER...      (tamur/rows.h, then tamur/tamur.h)
local ffi = require("ffi")

-- The declarations of a header: without what is for the preprocessor, and for C++.
local function declarations(path)
    local file = assert(io.open(path))
    local text = file:read("*a"):gsub("#ifdef __cplusplus.-#endif", "")
    file:close()
    return (text:gsub("static inline.-\n}\n", ""):gsub("\n#[^\n]*", ""):gsub("TAMUR_API", ""))
end
for i = 3, #arg do ffi.cdef(declarations(arg[i])) end
local tamur = ffi.load(arg[1])

local failure = ffi.new("TamurError")
local function check(status)
    if status ~= tamur.TAMUR_OK then error(ffi.string(failure.text), 0) end
end

local model = ffi.new("TamurModel*[1]")
check(tamur.TamurOpen(arg[2], 0, model, failure))

-- The rows of a table, their number, and a function for its texts. Rows do not keep their table.
local kept = {}
local function rows_of(number, row)
    local out = ffi.new("const TamurTable*[1]")
    check(tamur.TamurGetTable(model[0], number, out, failure))
    local made = ffi.gc(out[0], tamur.TamurReleaseTable)
    kept[#kept + 1] = made
    return ffi.cast("const " .. row .. "*", made.rows), tonumber(made.count), function(place)
        return place >= 0 and ffi.string(made.texts + made.text_starts[place]) or ""
    end
end

local bars, bar_count = rows_of(tamur.TAMUR_BARS, "TamurBar")
local sections, section_count, text = rows_of(tamur.TAMUR_SECTIONS, "TamurSection")
local materials = rows_of(tamur.TAMUR_MATERIALS, "TamurMaterial")
for s = 0, section_count - 1 do
    local length, weight = 0, 0
    for b = 0, bar_count - 1 do
        local bar = bars[b]
        if bar.start_section == s and bar.material >= 0 then
            length = length + bar.length
            weight = weight + bar.length * sections[s].area * materials[bar.material].unit_weight
        end
    end
    print(("%s: %.2f m, %.0f N"):format(text(sections[s].name), length, weight))
end
tamur.TamurClose(model[0])
