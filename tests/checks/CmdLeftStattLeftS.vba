'= Modul Zeichenketten
Option Explicit
Private Const cText = "Left(x, 1)"
Public Sub Kürzen(ByVal s As String)
    s = Left(s, 1) '! Kürzen "Es wird Left statt Left$ verwendet"
    s = Left$(s, 1) & LeftB(s, 2) ' Left(s, 1) '! Kürzen "LeftB statt LeftB$"
    s = Mid(s, 1) & Mid(s, 2) & Mid$(s, 3) '! Kürzen "Mid statt Mid$" '! Kürzen "Mid statt"
    s = UCase(LCase(Trim(LTrim(RTrim(s))))) '! Kürzen "UCase statt" '! Kürzen "LCase statt" '! Kürzen "Es wird Trim statt" '! Kürzen "LTrim statt" '! Kürzen "RTrim statt"
    s = Chr(65) & ChrB(66) & Hex(10) & Oct(8) & Str(5) '! Kürzen "Chr statt Chr$" '! Kürzen "ChrB statt ChrB$" '! Kürzen "Hex" '! Kürzen "Oct" '! Kürzen "Str statt Str$"
    s = Space(3) & String(3, "x") & Right(s, 1) & RightB(s, 2) & MidB(s, 3) '! Kürzen "Space" '! Kürzen "String statt String$" '! Kürzen "Right statt" '! Kürzen "RightB statt" '! Kürzen "MidB statt"
    s = Date & Time & Date() & Time() & Error(5) & Error$(5) '! Kürzen "Date" '! Kürzen "Time" '! Kürzen "Error statt Error$"
    s = Command() & CurDir() & Dir("x") & Input(1, #1) & InputB(1, #1) '! Kürzen "Command" '! Kürzen "CurDir" '! Kürzen "Dir statt Dir$" '! Kürzen "Input statt" '! Kürzen "InputB statt"
    s = Format(1, "0") & Format(2, "0") & Format$(3) '! Kürzen "Format statt Format$" '! Kürzen "Format"
    rs.Left (5): s = rs.Left(5) & Me.Date(1) '! Kürzen "Left" '! Kürzen "Date"
    s = Mein_Left(s) & Left_(s) & LeftNeu(s) & ÄLeft(s) & Strings(1)
    ' Left(s, 1)
    Rem Left(s, 1)
    Beep: Rem Left(s, 1)
    Debug.Print "Left(s, 1)", "'" & Left(s, 1) '! Kürzen "Left"
    ' Fortgesetzt _
      Left(s, 1)
    s = "x" & _
        Left(s, 1) '! Kürzen "Left"
    Dim strListe() As String, arr(5) As Date
End Sub
Public Function Left(ByVal s As String) As String
    Left = VBA.Left(s, 1) '! Left "Left"
End Function
Public Function Format(Text As String, _
    Optional Left = "Left(1)") As String
    Format = Right(Text, 1) '! Format "Right"
End Function
Public Sub Einzeiler(): Debug.Print Left("x"): End Sub
Public Property Get Größe() As String
    If True Then Größe = Trim(Größe) Else Größe = UCase$(Größe) '! Größe "Es wird Trim statt"
End Property
