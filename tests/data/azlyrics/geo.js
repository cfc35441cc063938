// SPDX-License-Identifier: MIT
(function () {
  var field = document.createElement("input");
  field.setAttribute("type", "hidden");
  field.setAttribute( "ignored", "since a blank stands before it");
  field.setAttribute("name", "draft");
  field.setAttribute("name" ,
    "x&y" );
  field.setAttribute('value', 'single quotation marks do not count');
  field.setAttribute("value", "7f3a+90=c2");
})();
