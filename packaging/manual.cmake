# Makes the page TARGET from the manual SOURCE: CMARK turns the text into HTML, the page around it comes from TEMPLATE.
execute_process(COMMAND ${CMARK} --extension table ${SOURCE} OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)

# The links between chapters need a name at each heading: its words in small letters, joined by hyphens.
string(REGEX MATCHALL "<h2>[^<]*</h2>" headings "${body}")
foreach(heading IN LISTS headings)
  string(REGEX REPLACE "</?h2>" "" title "${heading}")
  string(TOLOWER "${title}" name)
  string(REGEX REPLACE "[^a-z0-9 ]" "" name "${name}")
  string(REPLACE " " "-" name "${name}")
  string(REPLACE "${heading}" "<h2 id=\"${name}\">${title}</h2>" body "${body}")
endforeach()

string(REPLACE "src=\"pictures/" "src=\"manual/" body "${body}")
configure_file(${TEMPLATE} ${TARGET} @ONLY)
