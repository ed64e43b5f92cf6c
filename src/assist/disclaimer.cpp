// SPDX-License-Identifier: MIT
#include "assist/disclaimer.h"

namespace twk {

namespace {

constexpr TextView terms =
    u"By using this software you accept its terms of use and this legal disclaimer.\r\n\r\n"
    u"No improvement of your placement in search engines and no extra traffic to your site is guaranteed.\r\n\r\n"
    u"We take no responsibility should a search engine act against you, be it by banning a site or by lowering its "
    u"rank. Please read the submission guidelines of each search engine before you upload pages.\r\n\r\n"
    u"We have no tie with any of the search engines.\r\n\r\n"
    u"The information and the software are provided \"as is\", without warranty of any kind, express or implied, "
    u"including any warranty of fitness for a particular purpose, and may change without notice.\r\n\r\n"
    u"In no event is the author liable for incidental, indirect, special or consequential damages, for lost profits, "
    u"for business interruption or for lost information that come from the use of this software, or from not being "
    u"able to use it.";

} // namespace

void disclaimer::Form_Load() {
    RichTextBox1.read_only = true;
    RichTextBox1.text = Text(terms);
}

} // namespace twk
