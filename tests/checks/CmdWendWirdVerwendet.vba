'= Modul Schleifen
Option Explicit
Private Const cWend = "Wend"
Public Sub Durchlaufen(ByVal rs As DAO.Recordset)
    Dim lngWendel As Long
    While Not rs.EOF
        While lngWendel < 5
            lngWendel = lngWendel + 1
        Wend '! Durchlaufen "Es wird 'Wend' verwendet"
        rs.MoveNext
    Wend ' Wend '! Durchlaufen
    Do While Not rs.EOF
        Debug.Print "Wend", Wende1, Wend_x, ÄWend
    Loop
    ' Wend
    Rem Wend
    Beep: Rem Wend
    ' Fortgesetzt _
      Wend
    While True: Beep: Wend: While False: Wend '! Durchlaufen '! Durchlaufen
    Debug.Print "'": While lngWendel: Wend: Debug.Print "Wend" '! Durchlaufen
End Sub
'= Klasse Öfen
Private mWende As Long
Private Sub Class_Initialize()
    While mWende < 3
        mWende = mWende + 1
    Wend '! Class_Initialize
End Sub
